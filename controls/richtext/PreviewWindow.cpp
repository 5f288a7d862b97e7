#include "controls/richtext/PreviewWindow.h"

#include <wx/button.h>
#include <wx/choice.h>
#include <wx/sizer.h>
#include <wx/stattext.h>

#include "backend/tessaline/Services.h"
#include "core/ErrorHandling.h"
#include "core/forms/Form.h"
#include "core/forms/Images.h"
#include "platform/ui/ModalFrame.h"

namespace mindloft {
namespace {

constexpr int kPrevious = 62120;
constexpr int kNext = 62121;
constexpr int kPrint = 62122;
constexpr int kClose = 62123;
constexpr int kPageOf = 62124;
constexpr int kZooms[] = {25, 50, 75, 100, 150, 200};
constexpr int kFirstZoom = 75;
constexpr int kGap = 4;

class PreviewBar : public wxPreviewControlBar {
 public:
  PreviewBar(wxPrintPreviewBase* preview, wxWindow* parent) : wxPreviewControlBar(preview, 0, parent) {}

  void CreateButtons() override {
    auto* sizer = new wxBoxSizer(wxHORIZONTAL);
    const auto flags = wxSizerFlags().CenterVertical().Border(wxALL, FromDIP(kGap));
    const auto add = [&](const char* name, int text, auto action) {
      auto* button = new wxButton(this, wxID_ANY, GetResource().GetString(text), wxDefaultPosition,
                                  wxDefaultSize, 0, wxDefaultValidator, name);
      button->Bind(wxEVT_BUTTON, [this, name, action](wxCommandEvent&) {
        Guarded("PreviewBar", name, [&] {
          action();
          Tell();
        });
      });
      sizer->Add(button, flags);
      return button;
    };
    add("cmdPrint", kPrint, [this] { GetPrintPreview()->Print(true); });
    previous_ = add("cmdPrevious", kPrevious, [this] { GoTo(GetPrintPreview()->GetCurrentPage() - 1); });
    next_ = add("cmdNext", kNext, [this] { GoTo(GetPrintPreview()->GetCurrentPage() + 1); });
    page_ = new wxStaticText(this, wxID_ANY, wxString(), wxDefaultPosition, wxDefaultSize, 0, "lblPage");
    sizer->Add(page_, flags);
    auto* zoom = new wxChoice(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, 0, nullptr, 0,
                              wxDefaultValidator, "cboZoom");
    for (const int each : kZooms) zoom->Append(wxString::Format("%d %%", each));
    zoom->SetStringSelection(wxString::Format("%d %%", kFirstZoom));
    zoom->Bind(wxEVT_CHOICE, [this, zoom](wxCommandEvent&) {
      Guarded("PreviewBar", "cboZoom", [&] { GetPrintPreview()->SetZoom(kZooms[zoom->GetSelection()]); });
    });
    sizer->Add(zoom, flags);
    sizer->AddStretchSpacer();
    auto* close = add("cmdClose", kClose, [this] { wxGetTopLevelParent(this)->Close(); });
    close->SetId(wxID_CANCEL);
    SetSizer(sizer);
    Tell();
  }

  void Tell() {
    const int page = GetPrintPreview()->GetCurrentPage();
    const int pages = GetPrintPreview()->GetMaxPage();
    page_->SetLabelText(GetResource().GetFormatString(
        kPageOf, {wxString::Format("%d", page), wxString::Format("%d", pages)}));
    previous_->Enable(page > GetPrintPreview()->GetMinPage());
    next_->Enable(page < pages);
    Layout();
  }

 private:
  void GoTo(int page) {
    const bool exists = page >= GetPrintPreview()->GetMinPage() && page <= GetPrintPreview()->GetMaxPage();
    if (exists) GetPrintPreview()->SetCurrentPage(page);
  }

  wxButton* previous_ = nullptr;
  wxButton* next_ = nullptr;
  wxStaticText* page_ = nullptr;
};

class PreviewFrame : public wxPreviewFrame {
 public:
  PreviewFrame(wxPrintPreview* preview, wxWindow* parent, const wxString& title)
      : wxPreviewFrame(preview, parent, title, wxDefaultPosition, wxDefaultSize,
                       wxDEFAULT_FRAME_STYLE | wxFRAME_FLOAT_ON_PARENT, "frmPreview") {}

  void CreateControlBar() override {
    auto* bar = new PreviewBar(m_printPreview, this);
    m_controlBar = bar;
    bar->CreateButtons();
  }

  /// The toolkit's status bar tells the pages in its own language; the bar above tells them in the user's.
  wxStatusBar* OnCreateStatusBar(int, long, wxWindowID, const wxString&) override { return nullptr; }
  void SetStatusText(const wxString&, int = 0) override {}

  void FollowLanguage() {
    ApplyLayoutDirection(*this);
    // The page's picture would be mirrored with its letters.
    m_previewCanvas->SetLayoutDirection(wxLayout_LeftToRight);
  }

  /// For pages that became known only while they were shown.
  void Tell() { static_cast<PreviewBar*>(m_controlBar)->Tell(); }
};

}  // namespace

void ShowPreview(wxWindow* parent, std::unique_ptr<wxPrintPreview> preview, const wxString& title) {
  wxPrintPreview* shown = preview.release();  // the frame's from now on
  auto* frame = new PreviewFrame(shown, parent, title);
  frame->SetIcons(WindowIcons());
  frame->InitializeWithModality(wxPreviewFrame_AppModal);
  frame->FollowLanguage();
  shown->SetZoom(kFirstZoom);
  constexpr int kWidth = 760;
  constexpr int kHeight = 640;
  frame->SetSize(frame->FromDIP(wxSize(kWidth, kHeight)));
  frame->CentreOnParent();
  platform::ShowAboveModal(*frame);
  frame->Show();
  frame->Tell();
}

}  // namespace mindloft
