#include "gallery/RichTextPart.h"

#include "controls/richtext/TXControl.h"
#include "controls/richtext/TextControl.h"

namespace mindloft {
namespace {

constexpr const char* kSample = R"(<html><body>
<h1>The knowledge of the house</h1>
<p>Text in <b>bold</b>, <i>italic</i>, <u>underlined</u>, <span style="color:#b03030">in colour</span> and
<span style="font-size:16pt">large</span>. 简体中文。 日本語。</p>
<h2>What to do first</h2>
<ol><li>Read the rules of the house.<li>Ask for the key.<li>Begin.</ol>
<ul><li>Tea is in the kitchen.<li>Coffee is not.</ul>
<table style="width:80%"><tr><th style="border:1px solid #000000">Day</th><th style="border:1px solid #000000">Open</th></tr>
<tr><td style="border:1px solid #000000">Monday</td><td style="border:1px solid #000000">8 to 18</td></tr>
<tr><td style="border:1px solid #000000">Sunday</td><td style="border:1px solid #000000">closed</td></tr></table>
<p style="text-align:right">مرحبا بالعالم، هذا نص عربي.</p>
<blockquote>Nothing is lost, nothing is truncated.</blockquote>
</body></html>)";

}  // namespace

RichTextPart::RichTextPart(wxWindow* parent, Tell tell)
    : GalleryPart(parent, "RichTextPart", std::move(tell)) {
  auto* page = Find<TXControl>("txPage");
  page->Content().LoadHtml(kSample);
  TellEvents(*page);
  auto* locked = Find<TextControl>("txLocked");
  TellEvents(*locked);
  locked->MouseDown = [this](int button, int, int, int) {
    TellEvent("txLocked", "MouseDown", wxString::Format("%d", button));
  };
}

void RichTextPart::TellEvents(RichTextControl& control) const {
  const wxString name = control.GetName();
  control.Change = [this, name] { TellEvent(name, "Change"); };
  control.PosChange = [this, name] { TellEvent(name, "PosChange"); };
  control.KeyUp = [this, name](int& key, int shift) {
    TellEvent(name, "KeyUp", wxString::Format("%d, %d", key, shift));
  };
  control.MouseUp = [this, name](int button, int, int, int) {
    TellEvent(name, "MouseUp", wxString::Format("%d", button));
  };
}

}  // namespace mindloft
