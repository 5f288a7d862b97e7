#include "core/frmErrorManager.h"

#include <wx/arrstr.h>
#include <wx/artprov.h>
#include <wx/button.h>
#include <wx/panel.h>
#include <wx/statbmp.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include <algorithm>
#include <map>
#include <utility>

#include "backend/tessaline/Services.h"
#include "core/ErrorHandling.h"

namespace mindloft {
namespace {

constexpr const char* formName = "frmErrorManager";
constexpr int moreInformationKey = 68;  // "D"
/// Captions of cmdMoreInfomation while the details are hidden and while they are shown.
constexpr const char* captionShow = "cmdMoreInfomation";
constexpr const char* captionHide = "cmdMoreInfomation.hide";
/// The width of the texts, in dialog units; a longer line is wrapped.
constexpr int textWidth = 230;
/// Characters of the headline that are shown; the details hold all of it.
constexpr std::size_t longestHeadline = 600;
/// Lines of the message that are shown before it scrolls.
constexpr int mostMessageLines = 10;

struct Picture {
  const char* key;
  wxArtID art;
};

/// The dialog's pictures by the kind of the message.
const std::map<int, Picture>& Pictures() {
  using Tessaline::MessageKind;
  static const std::map<int, Picture> pictures = {
      {static_cast<int>(MessageKind::Critical), {"Critical", wxART_ERROR}},
      {static_cast<int>(MessageKind::Question), {"Question", wxART_QUESTION}},
      {static_cast<int>(MessageKind::Exclamation), {"Exclamation", wxART_WARNING}},
      {static_cast<int>(MessageKind::Information), {"Information", wxART_INFORMATION}},
  };
  return pictures;
}

/// The text with a blank wherever a word is wider than `width` pixels: the toolkit wraps at blanks only, and
/// a name may be one long word.
wxString WithBreakableWords(const wxWindow& window, const wxString& text, int width) {
  wxString breakable;
  wxString word;
  for (wxUniChar character : text) {
    bool blank = character == ' ' || character == '\n';
    if (!blank && window.GetTextExtent(word + character).x > width) {
      breakable += word + " ";
      word.clear();
    }
    word += character;
    if (blank) {
      breakable += word;
      word.clear();
    }
  }
  return breakable + word;
}

/// The form in which the user is at work: a modal dialog without an owner would fall behind it.
wxWindow* FormAtWork() {
  for (auto node = wxTopLevelWindows.GetLast(); node; node = node->GetPrevious()) {
    auto* form = dynamic_cast<wxTopLevelWindow*>(node->GetData());
    if (form && form->IsShown() && form->IsActive()) return form;
  }
  return nullptr;
}

}  // namespace

frmErrorManager::frmErrorManager(wxWindow* parent)
    : FormDialog(parent ? parent : FormAtWork(), formName),
      Image1(Find<wxStaticBitmap>("Image1")),
      lblHeadline(Find<wxStaticText>("lblHeadline")),
      txtMessage(Find<wxTextCtrl>("txtMessage")),
      cmdMoreInfomation(Find<wxButton>("cmdMoreInfomation")),
      cmdOK(Find<wxButton>("cmdOK")),
      picMoreInfoMation(Find<wxPanel>("picMoreInfoMation")),
      txtMoreInfomation(Find<wxTextCtrl>("txtMoreInfomation")),
      picture_("Information") {
  SetButtons("cmdOK", "cmdOK");
  txtMessage->SetBackgroundColour(GetBackgroundColour());
  // Where boxes have margins the text would not begin below the headline's.
  txtMessage->SetMargins(0);
  wxFont font = lblHeadline->GetFont();
  lblHeadline->SetFont(font.MakeBold());
  picMoreInfoMation->Hide();
  BindHandlers();
}

void frmErrorManager::BindHandlers() {
  cmdOK->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { CmdOK_Click(); });
  cmdMoreInfomation->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { cmdMoreInfomation_Click(); });
  picMoreInfoMation->Bind(wxEVT_SIZE, [this](wxSizeEvent&) { picMoreInfoMation_Resize(); });
  txtMessage->Bind(wxEVT_SET_FOCUS, [this](wxFocusEvent& event) {
    event.Skip();
    // The toolkit does not allow moving the focus before it has arrived.
    CallAfter([this] { txtMessage_GotFocus(); });
  });
  Bind(wxEVT_CHAR_HOOK, [this](wxKeyEvent& event) {
    bool plain = (event.GetModifiers() & ~wxMOD_SHIFT) == 0;
    if (!plain || !Form_KeyPress(event.GetKeyCode())) event.Skip();
  });
}

void frmErrorManager::SetHeadline(const wxString& text) {
  headline_ = text;
  lblHeadline->Show(!text.empty());
}

void frmErrorManager::SetTextSource(std::function<Texts()> source) {
  textSource_ = std::move(source);
  language_ = GetRefresh()->OnNotifyLanguage([this] { Refresh_NotifyLanguage(); });
}

void frmErrorManager::Refresh_NotifyLanguage() try {
  const Texts texts = textSource_();
  LoadInfoOnForm();
  SetTitle(texts.caption);
  SetHeadline(texts.headline);
  txtMoreInfomation->ChangeValue(texts.moreInformation);
  SetMoreInformationCaption();
  SetMessageHeight();
} catch (...) {
  ReportOnly(formName, "Refresh_NotifyLanguage");
}

void frmErrorManager::Dispaly(const wxString& caption, const wxString& message, int kind,
                              const wxString& moreInformation, bool flag, int& result) try {
  result = 0;
  LoadInfoOnForm();
  SetTitle(caption);
  txtMessage->ChangeValue(message);
  txtMoreInfomation->ChangeValue(moreInformation);
  SetPicture(kind);
  cmdMoreInfomation->Show(!moreInformation.empty());
  SetMoreInformationCaption();
  SetPos(flag);
  SetMessageHeight();
  cmdOK->SetFocus();
  result = ShowModal();
} catch (...) {
  mindloft::Raise(formName, "Dispaly");
}

void frmErrorManager::SetPicture(int kind) {
  auto found = Pictures().find(kind);
  if (found == Pictures().end()) return;
  picture_ = found->second.key;
  Image1->SetBitmap(wxArtProvider::GetBitmapBundle(found->second.art, wxART_MESSAGE_BOX));
}

void frmErrorManager::SetMoreInformationCaption() {
  auto caption = GetResource().CaptionOf(formName, moreShown_ ? captionHide : captionShow);
  if (caption) cmdMoreInfomation->SetLabel(caption->text);
}

void frmErrorManager::WrapHeadline() {
  const int width = ConvertDialogToPixels(wxSize(textWidth, 0)).x;
  wxString text = headline_;
  if (text.length() > longestHeadline) text = text.Left(longestHeadline) + wxUniChar(0x2026);
  // Wrapping changes the label, so it starts from the whole text each time. "&" stands for itself here.
  lblHeadline->SetLabelText(WithBreakableWords(*lblHeadline, text, width));
  lblHeadline->Wrap(width);
}

void frmErrorManager::SetMessageHeight() try {
  WrapHeadline();
  const int width = ConvertDialogToPixels(wxSize(textWidth, 0)).x;
  int lines = 0;
  wxArrayString paragraphs = wxSplit(txtMessage->GetValue(), '\n', '\0');
  for (const auto& paragraph : paragraphs) {
    // A little is taken off for the margins of the box; a word that moves to the next line leaves a gap.
    int usable = std::max(1, width - 4 * txtMessage->GetCharWidth());
    lines += 1 + txtMessage->GetTextExtent(paragraph).x / usable;
  }
  int height = (std::min(lines, mostMessageLines) + 1) * txtMessage->GetCharHeight();
  txtMessage->SetMinSize(wxSize(width, height));
  SetMinSize(wxDefaultSize);
  // Growing first: what is laid out in too little space would be squeezed.
  Fit();
  SetMinSize(GetSize());
  Layout();
} catch (...) {
  ReportOnly(formName, "SetMessageHeight");
}

void frmErrorManager::SetPos(bool flag) try {
  moreShown_ = false;
  picMoreInfoMation->Hide();
  SetMessageHeight();
  if (flag || !GetParent()) {
    CentreOnScreen();
  } else {
    CentreOnParent();
  }
} catch (...) {
  ReportOnly(formName, "SetPos");
}

void frmErrorManager::LoadInfoOnForm() {
  FormDialog::LoadInfoOnForm();
}

void frmErrorManager::cmdMoreInfomation_Click() try {
  moreShown_ = !moreShown_;
  picMoreInfoMation->Show(moreShown_);
  SetMoreInformationCaption();
  SetMessageHeight();
} catch (...) {
  ReportOnly(formName, "cmdMoreInfomation_Click");
}

void frmErrorManager::picMoreInfoMation_Resize() try {
  txtMoreInfomation->SetSize(picMoreInfoMation->GetClientRect());
} catch (...) {
  ReportOnly(formName, "picMoreInfoMation_Resize");
}

void frmErrorManager::txtMessage_GotFocus() try { cmdOK->SetFocus(); } catch (...) {
  ReportOnly(formName, "txtMessage_GotFocus");
}

void frmErrorManager::CmdOK_Click() try {
  if (IsModal()) EndModal(wxID_OK);
} catch (...) {
  ReportOnly(formName, "CmdOK_Click");
}

bool frmErrorManager::Form_KeyPress(int keyCode) try {
  if (keyCode == moreInformationKey && cmdMoreInfomation->IsShown() && cmdMoreInfomation->IsEnabled()) {
    cmdMoreInfomation_Click();
    return true;
  }
  bool enter = keyCode == WXK_RETURN || keyCode == WXK_NUMPAD_ENTER;
  if (keyCode == WXK_ESCAPE || (enter && !cmdMoreInfomation->HasFocus())) {
    CmdOK_Click();
    return true;
  }
  return false;
} catch (...) {
  ReportOnly(formName, "Form_KeyPress");
  return false;
}

}  // namespace mindloft
