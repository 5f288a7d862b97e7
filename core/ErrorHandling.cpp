#include "core/ErrorHandling.h"

#include <wx/app.h>
#include <wx/tokenzr.h>

#include <charconv>
#include <map>

#include "backend/tessaline/Services.h"
#include "backend/tessaline/Text.h"
#include "core/ErrorText.h"
#include "core/frmErrorManager.h"

namespace mindloft {
namespace {

using Tessaline::MessageKind;

constexpr int titleError = 59103;
/// System errors have their texts above this number: 61475 for number 75.
constexpr int systemErrorTexts = 61400;

/// The current error, with this procedure added to its trail and to the log.
Error Reported(const char* objectName, const char* procedureName) {
  Error error = CurrentError();
  ErrorNumber number = error.Number();
  GetUtility().ReportError(objectName, procedureName, number, error, error.LineIn(procedureName));
  return error;
}

int TitleOf(MessageKind kind) {
  switch (kind) {
    case MessageKind::Critical:
      return titleError;
    case MessageKind::Exclamation:
      return Tessaline::kWarningTitle;
    case MessageKind::Question:
    case MessageKind::Information:
      break;
  }
  return Tessaline::kInformationTitle;
}

/// What the user calls a field of the back end; the field itself when it has no name.
wxString FieldName(const std::string& field) {
  static const std::map<std::string, int, std::less<>> names = {{"name", 59306},        {"fullName", 59307},
                                                                {"description", 59308}, {"email", 59414},
                                                                {"department", 61604},  {"telephone", 61605}};
  const auto name = names.find(field);
  return name == names.end() ? ToWx(field) : GetResource().GetString(name->second);
}

/// The user's text, then each part of the description on a line of its own.
wxString MoreInformation(const wxString& userText, const Error& error) {
  wxString text = userText;
  wxStringTokenizer parts(ToWx(error.Description()), ";", wxTOKEN_STRTOK);
  while (parts.HasMoreTokens()) {
    wxString part = parts.GetNextToken();
    part.Trim(true).Trim(false);
    if (!part.empty()) text += "\n" + part;
  }
  return text;
}

void ShowInDialog(const Error& error) {
  const MessageKind kind = GetUtility().ErrorKind(error.Number());
  const wxString number = wxString::Format("%d", static_cast<int>(error.Number()));
  const auto texts = [&] {
    const wxString userText = TextOf(error);
    return frmErrorManager::Texts{GetResource().GetString(TitleOf(kind)) + " ('" + number + "')", userText,
                                  MoreInformation(userText, error)};
  };
  const auto [caption, headline, moreInformation] = texts();
  frmErrorManager dialog;
  dialog.SetHeadline(headline);
  dialog.SetTextSource(texts);
  int result = 0;
  dialog.Dispaly(caption, "Runtime error at " + ToWx(error.Source()), static_cast<int>(kind), moreInformation,
                 IsSystemError(ToUtf8(number)), result);
}

/// Shows an error that has been reported already. A failure in here is logged and ends here: it must not come
/// back to this path.
void Show(const Error& error) noexcept {
  static bool showing = false;
  // An error that arises while another one is shown is in the log; a pile of dialogs would help nobody.
  if (showing || !wxTheApp) return;
  showing = true;
  try {
    ShowInDialog(error);
  } catch (...) {
    try {
      Reported("modShare", "ShowError");
      GetMessenger().ShowMessage(static_cast<int>(error.Number()) +
                                 (IsApplicationError(error.Number()) ? 0 : systemErrorTexts));
    } catch (...) {
    }
  }
  showing = false;
}

}  // namespace

wxString TextOf(const Error& error) {
  int number = static_cast<int>(error.Number());
  std::vector<wxString> parameters;
  for (const auto& parameter : error.Parameters()) parameters.push_back(ToWx(parameter));
  const bool tellsField =
      error.Number() == ErrorNumber::TextTooLong || error.Number() == ErrorNumber::TextInvalid;
  if (tellsField && !parameters.empty()) parameters.front() = FieldName(error.Parameters().front());
  return GetResource().GetFormatString(
      IsApplicationError(error.Number()) ? number : systemErrorTexts + number, parameters);
}

void Raise(const char* objectName, const char* procedureName) {
  throw Reported(objectName, procedureName);
}

void ShowError(const char* objectName, const char* procedureName) noexcept {
  try {
    Show(Reported(objectName, procedureName));
  } catch (...) {
  }
}

void ReportOnly(const char* objectName, const char* procedureName) noexcept {
  try {
    Reported(objectName, procedureName);
  } catch (...) {
  }
}

bool IsSystemError(const std::string& numberText) {
  std::int32_t number = 0;
  auto end = numberText.data() + numberText.size();
  auto [stop, failure] = std::from_chars(numberText.data(), end, number);
  return failure == std::errc() && stop == end && !IsApplicationError(static_cast<ErrorNumber>(number));
}

}  // namespace mindloft
