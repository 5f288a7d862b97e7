#include "controls/richtext/ButtonBar.h"

#include <wx/choice.h>
#include <wx/combobox.h>
#include <wx/toolbar.h>
#include <wx/xrc/xmlres.h>

#include <algorithm>

#include "backend/tessaline/Services.h"
#include "controls/FontFaces.h"
#include "controls/richtext/EditCommands.h"
#include "controls/richtext/EditFormat.h"
#include "controls/richtext/RichStyles.h"
#include "controls/richtext/RichTextControl.h"
#include "core/ErrorHandling.h"
#include "core/forms/Images.h"
#include "platform/ui/Direction.h"

namespace mindloft {
namespace {

constexpr int kToolSize = 16;
constexpr int kGap = 2;
constexpr int kStyleWidth = 110;
constexpr int kFaceWidth = 130;
constexpr int kSizeWidth = 70;
constexpr int kMostPoints = 400;
constexpr int kStyleText = 62042;
constexpr int kFaceText = 62040;
constexpr int kSizeText = 62041;
constexpr const char* kSizes[] = {"8",  "9",  "10", "11", "12", "14", "16",
                                  "18", "20", "24", "28", "36", "48", "72"};

const std::vector<std::vector<const char*>>& Groups() {
  static const std::vector<std::vector<const char*>> groups{
      {"bold", "italic", "underline"},
      {"align-left", "align-centre", "align-right", "align-justify"},
      {"bullets", "numbering", "indent-less", "indent-more"},
      {"undo", "redo"},
      {"table", "find", "print-preview", "print"}};
  return groups;
}

/// Runs from left to right in a mirrored form too: letters and lines of text in its pictures would be
/// mirrored.
class GroupBar : public wxToolBar {
 public:
  using wxToolBar::wxToolBar;
  void SetLayoutDirection(wxLayoutDirection) override { wxToolBar::SetLayoutDirection(wxLayout_LeftToRight); }
};

/// A number of the toolkit's that stays reserved: those of windows are given anew when the last tool is gone.
wxWindowID IdOf(const char* name) {
  return wxXmlResource::GetXRCID(wxString("edit-") + name);
}

}  // namespace

ButtonBar::ButtonBar(RichTextControl* control, const wxString& name)
    : wxPanel(control, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxTAB_TRAVERSAL, name),
      control_(*control) {
  AddChoices();
  for (const auto& group : Groups()) AddGroup(group);
  LoadTexts();
}

void ButtonBar::AddChoices() {
  cboStyle = new wxChoice(this, wxID_ANY, wxDefaultPosition, FromDIP(wxSize(kStyleWidth, -1)), 0, nullptr, 0,
                          wxDefaultValidator, "cboStyle");
  cboFace = new wxChoice(this, wxID_ANY, wxDefaultPosition, FromDIP(wxSize(kFaceWidth, -1)), 0, nullptr, 0,
                         wxDefaultValidator, "cboFace");
  cboSize = new wxComboBox(this, wxID_ANY, wxString(), wxDefaultPosition, FromDIP(wxSize(kSizeWidth, -1)), 0,
                           nullptr, wxTE_PROCESS_ENTER, wxDefaultValidator, "cboSize");
  OfferFaces(*cboFace);
  for (const char* size : kSizes) cboSize->Append(size);
  cboStyle->Bind(wxEVT_CHOICE,
                 [this](wxCommandEvent&) { Guarded("ButtonBar", "OnStyle", [this] { OnStyle(); }); });
  cboFace->Bind(wxEVT_CHOICE,
                [this](wxCommandEvent&) { Guarded("ButtonBar", "OnFace", [this] { OnFace(); }); });
  for (const auto& type : {wxEVT_COMBOBOX, wxEVT_TEXT_ENTER})
    cboSize->Bind(type, [this](wxCommandEvent&) { Guarded("ButtonBar", "OnSize", [this] { OnSize(); }); });
  groups_ = {cboStyle, cboFace, cboSize};
}

void ButtonBar::AddGroup(const std::vector<const char*>& commands) {
  auto* bar = new GroupBar(this, wxID_ANY, wxDefaultPosition, wxDefaultSize,
                           wxTB_FLAT | wxTB_HORIZONTAL | wxTB_NODIVIDER, wxString("tbr-") + commands.front());
  for (const char* name : commands) {
    const EditCommand& command = CommandOf(name);
    bar->AddTool(IdOf(name), wxString(), LoadImage(wxString("edit-") + name, kToolSize), wxString(),
                 command.isChecked ? wxITEM_CHECK : wxITEM_NORMAL);
    bar->Bind(
        wxEVT_TOOL,
        [this, &command](wxCommandEvent&) {
          RunCommand(control_, command);
          control_.Editor().SetFocus();
        },
        IdOf(name));
  }
  bar->SetLayoutDirection(wxLayout_LeftToRight);
  bar->Realize();
  groups_.push_back(bar);
}

void ButtonBar::LoadTexts() {
  const auto& texts = GetResource();
  const int style = cboStyle->GetSelection();
  cboStyle->Clear();
  for (const RichStyle& each : RichStyles()) cboStyle->Append(texts.GetString(each.text));
  cboStyle->SetSelection(style);
  cboStyle->SetToolTip(texts.GetString(kStyleText));
  cboFace->SetToolTip(texts.GetString(kFaceText));
  cboSize->SetToolTip(texts.GetString(kSizeText));
  for (wxWindow* group : groups_) {
    auto* bar = dynamic_cast<wxToolBar*>(group);
    if (!bar) continue;
    for (const auto& commands : Groups()) {
      for (const char* name : commands) {
        const int id = IdOf(name);
        if (!bar->FindById(id)) continue;
        const wxString text = texts.GetString(CommandOf(name).text);
        bar->SetToolShortHelp(id, text);
        bar->FindById(id)->SetLabel(text);
      }
    }
    platform::ApplyDirectionInside(*bar);
  }
}

int ButtonBar::Arrange(int width) {
  const int gap = FromDIP(kGap);
  int left = gap;
  int top = gap;
  int height = 0;
  for (wxWindow* group : groups_) {
    const wxSize size = group->GetBestSize();
    const int wide =
        group == cboStyle || group == cboFace || group == cboSize ? group->GetMinSize().x : size.x;
    if (left > gap && left + wide > width) {
      left = gap;
      top += height + gap;
      height = 0;
    }
    group->SetSize(left, top, wide, size.y);
    left += wide + gap;
    height = std::max(height, size.y);
  }
  return top + height + gap;
}

void ButtonBar::ShowState(const RichTextControl& control) {
  RichEditor& editor = control.Editor();
  const bool enabled = control.GetEnable() && !control.Locked();
  for (wxWindow* choice :
       {static_cast<wxWindow*>(cboStyle), static_cast<wxWindow*>(cboFace), static_cast<wxWindow*>(cboSize)}) {
    if (choice->IsThisEnabled() != enabled) choice->Enable(enabled);
  }
  cboStyle->SetStringSelection(StyleText(StyleOf(editor)));
  const wxRichTextAttr format = CharacterFormat(editor);
  if (format.HasFontFaceName()) ShowFace(*cboFace, format.GetFontFaceName());
  const wxString size = wxString::Format("%d", format.GetFontSize());
  if (!cboSize->HasFocus() && cboSize->GetValue() != size) cboSize->ChangeValue(size);
  for (wxWindow* group : groups_) {
    auto* bar = dynamic_cast<wxToolBar*>(group);
    if (!bar) continue;
    for (const auto& commands : Groups()) {
      for (const char* name : commands) {
        const EditCommand& command = CommandOf(name);
        const int id = IdOf(name);
        if (!bar->FindById(id)) continue;
        const bool usable = command.isEnabled(control);
        if (bar->GetToolEnabled(id) != usable) bar->EnableTool(id, usable);
        if (command.isChecked && bar->GetToolState(id) != command.isChecked(control))
          bar->ToggleTool(id, command.isChecked(control));
      }
    }
  }
}

void ButtonBar::OnStyle() {
  const int chosen = cboStyle->GetSelection();
  if (chosen != wxNOT_FOUND)
    ApplyStyleName(control_.Editor(), RichStyles()[static_cast<std::size_t>(chosen)].name);
  control_.Editor().SetFocus();
}

void ButtonBar::OnFace() {
  wxRichTextAttr format;
  format.SetFontFaceName(cboFace->GetStringSelection());
  ApplyToCharacters(control_.Editor(), format);
  control_.Editor().SetFocus();
}

void ButtonBar::OnSize() {
  long points = 0;
  if (cboSize->GetValue().ToLong(&points) && points > 0 && points <= kMostPoints) {
    wxRichTextAttr format;
    format.SetFontPointSize(static_cast<int>(points));
    ApplyToCharacters(control_.Editor(), format);
  }
  control_.Editor().SetFocus();
}

}  // namespace mindloft
