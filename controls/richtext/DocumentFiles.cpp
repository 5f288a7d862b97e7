#include "controls/richtext/DocumentFiles.h"

#include <wx/filename.h>

#include <filesystem>
#include <initializer_list>
#include <optional>
#include <string>
#include <utility>

#include "backend/corvane/document/DocumentLimits.h"
#include "backend/tessaline/Services.h"
#include "backend/tessaline/Text.h"
#include "controls/richtext/RichTextControl.h"
#include "core/ErrorHandling.h"
#include "platform/FileAccess.h"
#include "platform/Paths.h"
#include "platform/Unicode.h"
#include "platform/ui/FileDialogs.h"

namespace mindloft {
namespace {

constexpr int kHtmlFiles = 62126;
constexpr int kTextFiles = 62127;
constexpr int kReplaceText = 62128;
constexpr int kNotUtf8 = 62129;  ///< %1 the file
constexpr const char* kHtmlPattern = "*.html;*.htm";

wxString Filter(std::initializer_list<std::pair<int, const char*>> kinds) {
  wxString filter;
  for (const auto& [text, pattern] : kinds)
    filter << (filter.empty() ? "" : "|") << GetResource().GetString(text) << " (" << pattern << ")|"
           << pattern;
  return filter;
}

bool IsHtml(const wxString& file) {
  const wxString extension = wxFileName(file).GetExt().Lower();
  return extension == "html" || extension == "htm";
}

/// Empty, and told, when the file is too large or no text in UTF-8.
std::optional<std::string> ReadText(RichTextControl& control, const wxString& file) {
  const auto path = platform::PathFromUtf8(ToUtf8(file));
  std::error_code unknown;
  const auto size = std::filesystem::file_size(path, unknown);
  if (!unknown && size > Corvane::kMostDocumentBytes)
    throw Error(ErrorNumber::DocumentTooLarge, ToUtf8(file));
  auto text = platform::ReadWholeFile(path);
  if (!text) throw Error(ErrorNumber::PathAccess, ToUtf8(file));
  if (platform::IsUtf8(*text)) return text;
  GetMessenger().ShowMessage(kNotUtf8, {file}, &control);
  return std::nullopt;
}

}  // namespace

bool OpenDocumentFile(RichTextControl& control) try {
  if (control.Locked()) return false;
  wxWindow* owner = wxGetTopLevelParent(&control);
  const wxString file =
      platform::OpenFileDialog(owner, Filter({{kHtmlFiles, kHtmlPattern}, {kTextFiles, "*.txt"}}));
  if (file.empty()) return false;
  const auto text = ReadText(control, file);
  if (!text) return false;
  const bool replaces = !control.Text().empty();
  if (replaces &&
      !GetMessenger().Ask(kReplaceText, Tessaline::kWarningTitle, Tessaline::Buttons::YesNoDefaultNo,
                          Tessaline::MessageKind::Question, {}, owner))
    return false;
  const int problem = IsHtml(file) ? control.Content().LoadHtml(*text) : control.Content().Load(*text);
  control.UpdateBars();
  if (problem != 0) GetMessenger().ShowMessage(problem, {}, owner);
  return true;
} catch (...) {
  Raise("DocumentFiles", "OpenDocumentFile");
}

void SaveDocumentFile(RichTextControl& control, const wxString& name) try {
  wxString proposed = name;
  for (const wxUniChar forbidden : wxFileName::GetForbiddenChars(wxPATH_DOS))
    proposed.Replace(wxString(forbidden), "_");
  const wxString file = platform::SaveFileDialog(wxGetTopLevelParent(&control),
                                                 Filter({{kHtmlFiles, kHtmlPattern}}), proposed + ".html");
  if (file.empty()) return;
  platform::ReplaceWholeFile(platform::PathFromUtf8(ToUtf8(file)), control.Content().SaveHtml());
} catch (...) {
  Raise("DocumentFiles", "SaveDocumentFile");
}

}  // namespace mindloft
