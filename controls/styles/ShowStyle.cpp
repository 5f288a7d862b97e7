#include "controls/styles/ShowStyle.h"

#include "backend/corvane/Style.h"
#include "backend/tessaline/Services.h"
#include "backend/tessaline/Text.h"
#include "controls/styles/StyleTexts.h"
#include "controls/styles/UserPreview.h"

namespace mindloft {
namespace {

/// Every line break as the preview wants it.
wxString WithLineBreaks(wxString text) {
  text.Replace("\r\n", "\n");
  text.Replace("\n", "\r\n");
  return text;
}

}  // namespace

void ShowStyle(UserPreview& preview, const std::shared_ptr<Corvane::Style>& style) {
  if (!style) {
    preview.SetPreviewText({});
    preview.Preview(nullptr);
    return;
  }
  wxString sample = ToWx(style->Format().sample);
  if (sample.empty()) sample = GetResource().GetFormatString(texts::kSampleText, {"\n"});
  preview.SetPreviewText(WithLineBreaks(sample));
  preview.Preview(style);
  const auto problem = style->FormatProblem();
  if (problem.empty()) return;
  GetUtility().Log("style " + style->Id() + ": " + problem);
  GetMessenger().ShowMessage(texts::kStyleDamaged, {ToWx(style->Name())}, &preview);
}

}  // namespace mindloft
