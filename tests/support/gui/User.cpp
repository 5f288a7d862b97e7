#include "tests/support/gui/User.h"

#include <wx/anybutton.h>
#include <wx/bookctrl.h>
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/combobox.h>
#include <wx/dialog.h>
#include <wx/frame.h>
#include <wx/listbox.h>
#include <wx/listctrl.h>
#include <wx/menu.h>
#include <wx/panel.h>
#include <wx/radiobut.h>
#include <wx/textctrl.h>
#include <wx/tglbtn.h>
#include <wx/toolbar.h>
#include <wx/xrc/xmlres.h>

#include <stdexcept>
#include <string>

#include "tests/support/gui/Keyboard.h"

namespace mindloft::test {
namespace {

void Send(wxWindow& control, wxEventType type, int number = 0, const wxString& text = {}) {
  wxCommandEvent event(type, control.GetId());
  event.SetEventObject(&control);
  event.SetInt(number);
  event.SetString(text);
  control.HandleWindowEvent(event);
}

/// Where a text is typed: the control itself, or the box that is shown inside a control made of several
/// windows.
wxWindow& TextPlace(wxWindow& control) {
  if (dynamic_cast<wxTextEntryBase*>(&control) || !dynamic_cast<wxPanel*>(&control)) return control;
  for (wxWindow* child : control.GetChildren()) {
    if (!child->IsShown()) continue;
    wxWindow& place = TextPlace(*child);
    if (dynamic_cast<wxTextEntryBase*>(&place)) return place;
  }
  return control;
}

/// The event that a control sends when the user picks one of its entries.
wxEventType PickEvent(const wxWindow& control) {
  // Some desktops' combo boxes are choices too.
  if (dynamic_cast<const wxComboBox*>(&control)) return wxEVT_COMBOBOX;
  return dynamic_cast<const wxChoice*>(&control) ? wxEVT_CHOICE : wxEVT_LISTBOX;
}

/// The button of a control that is made of one.
wxWindow* ButtonInside(const wxWindow& control) {
  const auto& children = control.GetChildren();
  return children.GetCount() == 1 ? dynamic_cast<wxAnyButton*>(children.GetFirst()->GetData()) : nullptr;
}

/// The console's own one, which the tests of lower rooms do not know.
bool IsDrawnButton(const wxWindow& control) {
  return wxString(control.GetClassInfo()->GetClassName()) == "MyButton";
}

void PressInTheMiddle(wxWindow& control) {
  for (const auto& type : {wxEVT_LEFT_DOWN, wxEVT_LEFT_UP}) {
    wxMouseEvent event(type);
    event.SetEventObject(&control);
    event.SetPosition(wxPoint() + control.GetClientSize() / 2);
    control.HandleWindowEvent(event);
  }
}

}  // namespace

wxWindow* User::FindWindow(const char* name) const {
  return wxWindow::FindWindowByName(name, &form_);
}

void User::Refuse(const char* name, const char* reason) {
  throw std::runtime_error(std::string("the user cannot: ") + name + " " + reason);
}

void User::RefuseUnusable(const char* name, const wxWindow& control) {
  if (!control.IsShownOnScreen()) Refuse(name, "is hidden");
  if (!control.IsEnabled()) Refuse(name, "is disabled");
}

void User::Type(const char* name, const wxString& text) {
  auto& control = TextPlace(Usable(name));
  auto* entry = dynamic_cast<wxTextEntryBase*>(&control);
  if (!entry || !entry->IsEditable()) Refuse(name, "takes no text");
  control.SetFocus();
  for (wxUniChar character : text) {
    if (!SendKey(control, static_cast<int>(character.GetValue()))) entry->WriteText(wxString(character));
  }
}

void User::Clear(const char* name) {
  auto& control = TextPlace(Usable(name));
  auto* entry = dynamic_cast<wxTextEntryBase*>(&control);
  if (!entry || !entry->IsEditable()) Refuse(name, "takes no text");
  control.SetFocus();
  entry->SelectAll();
  // A combo box that is cleared loses its list as well.
  if (!entry->IsEmpty() && !SendKey(control, WXK_DELETE)) entry->RemoveSelection();
}

void User::Click(const char* name) {
  auto& control = Usable(name);
  if (auto* radio = dynamic_cast<wxRadioButton*>(&control)) {
    radio->SetValue(true);
    Send(control, wxEVT_RADIOBUTTON, 1);
  } else if (auto* toggle = dynamic_cast<wxToggleButton*>(&control)) {
    toggle->SetValue(!toggle->GetValue());
    Send(control, wxEVT_TOGGLEBUTTON, toggle->GetValue());
  } else if (dynamic_cast<wxAnyButton*>(&control)) {
    Send(control, wxEVT_BUTTON);
  } else if (wxWindow* inner = ButtonInside(control)) {
    inner->SetFocus();
    Send(*inner, wxEVT_BUTTON);
  } else if (IsDrawnButton(control)) {
    PressInTheMiddle(control);
  } else {
    Refuse(name, "is no button");
  }
}

void User::Check(const char* name, bool checked) {
  auto& box = Usable<wxCheckBox>(name);
  if (box.GetValue() == checked) return;
  box.SetValue(checked);
  Send(box, wxEVT_CHECKBOX, checked);
}

void User::Choose(const char* name, const wxString& entry) {
  auto& control = Usable(name);
  auto* items = dynamic_cast<wxItemContainerImmutable*>(&control);
  int index = items ? items->FindString(entry, true) : wxNOT_FOUND;
  if (index == wxNOT_FOUND) Refuse(name, "has no such entry");
  items->SetSelection(index);
  Send(control, PickEvent(control), index, entry);
}

void User::SelectPage(const char* notebook, int page) {
  auto& book = Usable<wxBookCtrlBase>(notebook);
  if (page < 0 || page >= static_cast<int>(book.GetPageCount())) Refuse(notebook, "has no such page");
  book.SetSelection(static_cast<std::size_t>(page));
}

void User::Command(const char* name) {
  Command(wxXmlResource::GetXRCID(name));
}

void User::Command(int id) {
  auto* frame = dynamic_cast<wxFrame*>(&form_);
  std::string name = "command " + std::to_string(id);
  if (!frame) Refuse(name.c_str(), "needs a frame");
  // Commands get their state when the toolkit is idle or a menu is opened.
  frame->UpdateWindowUI(wxUPDATE_UI_RECURSE);
  auto* bar = frame->GetMenuBar();
  if (bar && bar->GetMenuCount() > 0) {
    wxMenuEvent opened(wxEVT_MENU_OPEN, 0, bar->GetMenu(0));
    frame->HandleWindowEvent(opened);
  }
  auto* item = bar ? bar->FindItem(id) : nullptr;
  auto* tools = frame->GetToolBar();
  bool tool = tools && tools->FindById(id);
  if (!item && !tool) Refuse(name.c_str(), "is in no menu and on no toolbar");
  if (item ? !item->IsEnabled() : !tools->GetToolEnabled(id)) Refuse(name.c_str(), "is disabled");
  if (item && item->IsCheckable()) item->Check(item->GetKind() == wxITEM_RADIO || !item->IsChecked());
  wxCommandEvent event(wxEVT_MENU, id);
  event.SetEventObject(frame);
  event.SetInt(item && item->IsCheckable() && item->IsChecked());
  frame->HandleWindowEvent(event);
}

void User::Press(int keyCode, int modifiers, const char* name) {
  wxWindow* control = name ? &TextPlace(Usable(name)) : wxWindow::FindFocus();
  if (name) control->SetFocus();
  if (!control || (control != &form_ && wxGetTopLevelParent(control) != wxGetTopLevelParent(&form_))) {
    control = &form_;
  }
  if (SendKey(*control, keyCode, modifiers) || modifiers != 0) return;
  // What the native control or dialog does with a key that no handler took.
  if (keyCode == WXK_RETURN || keyCode == WXK_NUMPAD_ENTER) {
    auto* form = dynamic_cast<wxTopLevelWindow*>(wxGetTopLevelParent(&form_));
    auto* button = dynamic_cast<wxAnyButton*>(control);
    wxWindow* pressed = button ? control : form ? form->GetDefaultItem() : nullptr;
    if (pressed && pressed->IsEnabled() && pressed->IsShownOnScreen()) Send(*pressed, wxEVT_BUTTON);
  } else if (keyCode == WXK_SPACE && dynamic_cast<wxAnyButton*>(control)) {
    Send(*control, wxEVT_BUTTON);
  }
}

void User::SendListEvent(wxListCtrl& list, int eventType, long row) const {
  wxListEvent event(eventType, list.GetId());
  event.SetEventObject(&list);
  event.m_itemIndex = row;
  list.HandleWindowEvent(event);
}

void User::SelectRow(const char* name, long row) {
  auto& list = Usable<wxListCtrl>(name);
  if (row < 0 || row >= list.GetItemCount()) Refuse(name, "has no such row");
  list.SetFocus();
  auto nextSelected = [&list] { return list.GetNextItem(-1, wxLIST_NEXT_ALL, wxLIST_STATE_SELECTED); };
  for (long item = nextSelected(); item >= 0; item = nextSelected()) {
    list.SetItemState(item, 0, wxLIST_STATE_SELECTED);
  }
  const long chosen = wxLIST_STATE_SELECTED | wxLIST_STATE_FOCUSED;
  list.SetItemState(row, chosen, chosen);
}

void User::DoubleClickRow(const char* name, long row) {
  SelectRow(name, row);
  SendListEvent(Usable<wxListCtrl>(name), wxEVT_LIST_ITEM_ACTIVATED, row);
}

wxString User::Read(const char* name) const {
  auto& control = TextPlace(Find(name));
  if (auto* entry = dynamic_cast<wxTextEntryBase*>(&control)) return entry->GetValue();
  if (auto* items = dynamic_cast<wxItemContainerImmutable*>(&control)) return items->GetStringSelection();
  return control.GetLabel();
}

bool User::IsChecked(const char* name) const {
  auto& control = Find(name);
  if (auto* box = dynamic_cast<wxCheckBox*>(&control)) return box->GetValue();
  if (auto* radio = dynamic_cast<wxRadioButton*>(&control)) return radio->GetValue();
  if (auto* toggle = dynamic_cast<wxToggleButton*>(&control)) return toggle->GetValue();
  Refuse(name, "cannot be checked");
}

bool User::IsEnabled(const char* name) const {
  return Find(name).IsEnabled();
}

bool User::IsShown(const char* name) const {
  return Find(name).IsShownOnScreen();
}

wxString User::Title() const {
  auto* form = dynamic_cast<wxTopLevelWindow*>(&form_);
  return form ? form->GetTitle() : wxString();
}

}  // namespace mindloft::test
