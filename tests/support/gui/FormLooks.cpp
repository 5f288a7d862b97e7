#include "tests/support/gui/FormLooks.h"

#include <gtest/gtest.h>
#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/dialog.h>
#include <wx/frame.h>
#include <wx/listctrl.h>
#include <wx/menu.h>
#include <wx/panel.h>
#include <wx/radiobut.h>
#include <wx/sizer.h>
#include <wx/statbox.h>
#include <wx/stattext.h>
#include <wx/statusbr.h>

#include <map>
#include <stdexcept>
#include <string>
#include <vector>

#include "backend/tessaline/Services.h"
#include "core/Refresh.h"
#include "tests/support/gui/ModalDriver.h"
#include "tests/support/gui/ShownTexts.h"
#include "tests/support/gui/WaitFor.h"

namespace mindloft::test {
namespace {

/// Where a window is, for the reader of a failure.
std::string Place(const wxWindow& window) {
  const wxString form = wxGetTopLevelParent(const_cast<wxWindow*>(&window))->GetName();
  return (form + "." + window.GetName() + " \"" + window.GetLabel() + "\" in ").utf8_string() +
         std::to_string(GetResource().CurrentLanguage());
}

template <typename... Kinds>
bool IsOneOf(const wxWindow& window) {
  return (dynamic_cast<const Kinds*>(&window) || ...);
}

bool HasLabel(const wxWindow& window) {
  return IsOneOf<wxStaticText, wxButton, wxCheckBox, wxRadioButton>(window);
}

bool IsThere(const wxWindow& child) {
  return child.IsShown() && !child.IsTopLevel() && child.GetSize().x > 0;
}

/// A control that lies outside what holds it; nullptr: none.
const wxWindow* Outside(const wxWindow& window) {
  if (!window.IsShownOnScreen()) return nullptr;
  const bool holds = IsOneOf<wxPanel, wxDialog>(window);
  const wxRect room(wxPoint(), window.GetVirtualSize());
  for (const wxWindow* child : window.GetChildren()) {
    if (!IsThere(*child)) continue;
    if (holds && !room.Contains(child->GetRect())) return child;
    if (const wxWindow* outside = Outside(*child)) return outside;
  }
  return nullptr;
}

/// The window manager may grant the size later, and the pages take theirs from the form. How large a frame is
/// lies with its user.
void WaitForRoom(const wxTopLevelWindow& form) {
  const bool isDialog = IsOneOf<wxDialog>(form);
  const auto fits = [&] {
    const wxSize needed = isDialog && form.GetSizer() ? form.GetSizer()->GetMinSize() : wxSize();
    return form.GetClientSize().x >= needed.x && form.GetClientSize().y >= needed.y && !Outside(form);
  };
  try {
    WaitFor(fits, "room for all controls");
  } catch (const std::runtime_error& error) {
    const wxWindow* outside = Outside(form);
    ADD_FAILURE() << Place(outside ? *outside : form) << ": " << error.what();
  }
}

void ExpectApart(const wxWindow& holder) {
  std::vector<const wxWindow*> shown;
  for (const wxWindow* child : holder.GetChildren()) {
    if (!IsThere(*child) || dynamic_cast<const wxStaticBox*>(child)) continue;
    for (const wxWindow* other : shown) {
      EXPECT_FALSE(child->GetRect().Intersects(other->GetRect()))
          << Place(*child) << " lies over " << Place(*other);
    }
    shown.push_back(child);
  }
}

void ExpectWhole(const wxWindow& window) {
  const wxSize needed = window.GetBestSize();
  EXPECT_GE(window.GetSize().x, needed.x) << Place(window) << " is cut off";
  EXPECT_GE(window.GetSize().y, needed.y) << Place(window) << " is cut off";
}

void ExpectWholeHeadings(const wxListCtrl& list) {
  if (!list.InReportView()) return;
  for (int column = 0; column < list.GetColumnCount(); ++column) {
    wxListItem heading;
    heading.SetMask(wxLIST_MASK_TEXT);
    list.GetColumn(column, heading);
    EXPECT_GT(list.GetColumnWidth(column), list.GetTextExtent(heading.GetText()).x)
        << Place(list) << ": heading " << heading.GetText().utf8_string();
  }
}

void ExpectWholeFields(const wxStatusBar& bar) {
  for (int field = 0; field < bar.GetFieldsCount(); ++field) {
    wxRect room;
    if (!bar.GetFieldRect(field, room)) continue;
    EXPECT_GE(room.width, bar.GetTextExtent(bar.GetStatusText(field)).x)
        << Place(bar) << ": " << bar.GetStatusText(field).utf8_string();
  }
}

/// The access keys of what is shown together.
class AccessKeys {
 public:
  void Add(const wxString& label) {
    for (std::size_t at = 0; at + 1 < label.length(); ++at) {
      if (label[at] != '&') continue;
      if (label[++at] == '&') continue;
      const auto [taken, free] = keys_.emplace(wxString(label[at]).Upper(), label);
      EXPECT_TRUE(free) << label.utf8_string() << " has the access key of " << taken->second.utf8_string()
                        << " in " << GetResource().CurrentLanguage();
      return;
    }
  }

 private:
  std::map<wxString, wxString> keys_;
};

void LookAt(const wxWindow& window, AccessKeys& keys) {
  if (!window.IsShownOnScreen()) return;
  if (HasLabel(window)) {
    keys.Add(window.GetLabel());
    ExpectWhole(window);
  }
  if (const auto* list = dynamic_cast<const wxListCtrl*>(&window)) return ExpectWholeHeadings(*list);
  if (const auto* bar = dynamic_cast<const wxStatusBar*>(&window)) return ExpectWholeFields(*bar);
  if (IsOneOf<wxPanel, wxDialog>(window)) ExpectApart(window);
  for (const wxWindow* child : window.GetChildren()) {
    if (!child->IsTopLevel()) LookAt(*child, keys);
  }
}

void LookAt(const wxMenu& menu) {
  AccessKeys keys;
  for (const wxMenuItem* item : menu.GetMenuItems()) {
    keys.Add(item->GetItemLabel().BeforeFirst('\t'));
    if (item->IsSubMenu()) LookAt(*item->GetSubMenu());
  }
}

}  // namespace

void InEveryLanguage(const std::function<void()>& look) {
  const int present = GetResource().CurrentLanguage();
  auto codes = GetResource().Languages();
  codes.push_back(present);
  for (const int code : codes) {
    SCOPED_TRACE("language " + std::to_string(code));
    ASSERT_TRUE(GetResource().SwitchLanguage(code));
    GetRefresh()->NotifyLanguage();
    Settle();
    look();
  }
}

void ExpectFits(const wxTopLevelWindow& form) {
  WaitForRoom(form);
  AccessKeys keys;
  LookAt(form, keys);
  const auto* frame = dynamic_cast<const wxFrame*>(&form);
  if (!frame || !frame->GetMenuBar()) return;
  AccessKeys bar;
  for (std::size_t menu = 0; menu < frame->GetMenuBar()->GetMenuCount(); ++menu) {
    bar.Add(frame->GetMenuBar()->GetMenuLabel(menu));
    LookAt(*frame->GetMenuBar()->GetMenu(menu));
  }
}

void ExpectLooks(const wxTopLevelWindow& form, std::size_t least, const std::set<wxString>& stored) {
  SCOPED_TRACE(form.GetName().utf8_string());
  ExpectFits(form);
  ExpectTextsOfLanguage(form, least, stored);
  EXPECT_EQ(form.GetLayoutDirection() == wxLayout_RightToLeft, GetResource().IsRightToLeft());
}

void ExpectLooksOpened(ModalDriver& modal, const char* name, const char* leave, std::size_t least,
                       const std::function<void()>& open) {
  InEveryLanguage([&] {
    modal.ExpectForm(name, [&](User& user) {
      ExpectLooks(dynamic_cast<const wxTopLevelWindow&>(user.Form()), least);
      user.Click(leave);
    });
    open();
  });
}

}  // namespace mindloft::test
