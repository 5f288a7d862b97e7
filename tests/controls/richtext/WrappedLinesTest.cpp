#include <gtest/gtest.h>
#include <wx/dcclient.h>

#include "backend/tessaline/Text.h"
#include "controls/richtext/EditFormat.h"
#include "controls/richtext/TXControl.h"
#include "controls/styles/PreviewBox.h"
#include "tests/controls/richtext/RichTextFixture.h"
#include "tests/support/gui/WaitFor.h"

namespace mindloft::test {
namespace {

constexpr const char* kTexts[] = {
    "تُدار مجالات المعرفة من نافذة واحدة، وفيها شجرة على اليمين وقائمة على اليسار. يثق المستخدمون بأن لا شيء "
    "يضيع ولا يُقتطع، وأن كل تغيير يُسجَّل ويمكن أن يُرى الخطأ قبل أن يقع في قاعدة البيانات المحفوظة.",
    "يحتوي الخادم Mindloft على 1234567 مستخدمًا و 12 مجالاً knowledge domains في الإصدار 3.5 من البرنامج، "
    "ويمكن فتح الملف report.txt من القائمة File ثم Open بعد تسجيل الدخول إلى server-01.example بكلمة المرور.",
    "The office file of the first affluent fisher offers affine differences: office file efficient final "
    "offices of the first affluent fisher, fi ffi fl ffl, and efficient offices of the first affluent "
    "fisher."};

/// Every line is as wide as what is drawn of it, and inside the box.
void ExpectWholeLines(wxRichTextCtrl& box, const std::string& what) {
  constexpr int kRounding = 3;
  wxClientDC dc(&box);
  std::size_t lines = 0;
  for (auto* node = box.GetBuffer().GetChildren().GetFirst(); node; node = node->GetNext()) {
    const auto* paragraph = dynamic_cast<wxRichTextParagraph*>(node->GetData());
    ASSERT_TRUE(paragraph);
    for (const wxRichTextLine* line : paragraph->GetLines()) {
      ++lines;
      const wxString text = paragraph->GetTextForRange(line->GetAbsoluteRange());
      wxRichTextAttr look;
      box.GetStyle(line->GetAbsoluteRange().GetStart(), look);
      dc.SetFont(look.GetFont());
      const int drawn = dc.GetTextExtent(text).x;
      // What stands at the end of a line may be a blank, which need not fit.
      const int blank = text.EndsWith(" ") ? dc.GetTextExtent(" ").x : 0;
      EXPECT_NEAR(line->GetSize().x, drawn, blank + kRounding) << what << ": " << ToUtf8(text);
      EXPECT_LE(line->GetAbsolutePosition().x + drawn, box.GetClientSize().x + blank) << ToUtf8(text);
      EXPECT_GE(line->GetAbsolutePosition().x, 0) << ToUtf8(text);
    }
  }
  EXPECT_GE(lines, 2 * std::size(kTexts)) << "nothing was wrapped";
}

class WrappedLinesTest : public RichTextFixture {};

TEST_F(WrappedLinesTest, AreWholeInTheEditorWhateverTheScript) {
  auto& control = Show(new TXControl(frame_));
  frame_->SetClientSize(520, 600);
  WaitFor([&] { return control.Editor().GetClientSize().x <= 520; }, "the narrow editor");
  wxString text;
  for (const char* each : kTexts) text += ToWx(each) + "\n";
  for (const int size : {9, 14}) {
    for (const auto alignment : {wxTEXT_ALIGNMENT_LEFT, wxTEXT_ALIGNMENT_RIGHT, wxTEXT_ALIGNMENT_CENTRE}) {
      control.SetText(text.BeforeLast('\n'));
      control.SelectAll();
      wxRichTextAttr look;
      look.SetFontPointSize(size);
      ApplyToCharacters(control.Editor(), look);
      wxRichTextAttr place;
      place.SetAlignment(alignment);
      ApplyToParagraphs(control.Editor(), place);
      control.SetSelStart(0);
      Settle();
      ExpectWholeLines(control.Editor(), std::to_string(size));
    }
  }
}

TEST_F(WrappedLinesTest, AreWholeInAPreviewWhateverTheScript) {
  auto* box = new PreviewBox(frame_, "picPreview");
  frame_->SetClientSize(420, 400);
  frame_->Show();
  box->SetSize(0, 0, 420, 400);
  for (const char* each : kTexts) box->WriteText(ToWx(each) + (each == std::end(kTexts)[-1] ? "" : "\n"));
  wxRichTextAttr look;
  look.SetAlignment(wxTEXT_ALIGNMENT_RIGHT);
  box->SetStyleEx(box->GetBuffer().GetOwnRange(), look, wxRICHTEXT_SETSTYLE_NONE);
  box->GetBuffer().Invalidate(wxRICHTEXT_ALL);
  box->LayoutContent();
  ExpectWholeLines(*box, "preview");
}

}  // namespace
}  // namespace mindloft::test
