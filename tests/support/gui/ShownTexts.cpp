#include "tests/support/gui/ShownTexts.h"

#include <gtest/gtest.h>
#include <wx/bookctrl.h>
#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/frame.h>
#include <wx/listctrl.h>
#include <wx/menu.h>
#include <wx/radiobut.h>
#include <wx/srchctrl.h>
#include <wx/statbox.h>
#include <wx/stattext.h>
#include <wx/statusbr.h>
#include <wx/toolbar.h>
#include <wx/treectrl.h>

#include <map>
#include <vector>

#include "backend/tessaline/LanguageFile.h"
#include "backend/tessaline/Services.h"
#include "tests/support/gui/PrivateServices.h"

namespace mindloft::test {
namespace {

using Tessaline::LanguageFile;

/// Reads the texts off a form.
class Reader {
 public:
  std::set<wxString> texts;

  void Read(const wxWindow& window) {
    if (!window.IsShownOnScreen()) return;
    Add(window.GetToolTipText());
    if (IsOneOf<wxStaticText, wxButton, wxCheckBox, wxRadioButton, wxStaticBox, wxTopLevelWindow>(window))
      Add(window.GetLabel());
    if (const auto* book = dynamic_cast<const wxBookCtrlBase*>(&window))
      for (std::size_t page = 0; page < book->GetPageCount(); ++page) Add(book->GetPageText(page));
    if (const auto* choice = dynamic_cast<const wxChoice*>(&window))
      for (const auto& entry : choice->GetStrings()) Add(entry);
    if (const auto* search = dynamic_cast<const wxSearchCtrl*>(&window)) Add(search->GetDescriptiveText());
    if (const auto* list = dynamic_cast<const wxListCtrl*>(&window)) ReadList(*list);
    if (const auto* tree = dynamic_cast<const wxTreeCtrl*>(&window)) ReadNode(*tree, tree->GetRootItem());
    if (const auto* bar = dynamic_cast<const wxStatusBar*>(&window))
      for (int field = 0; field < bar->GetFieldsCount(); ++field) Add(bar->GetStatusText(field));
    if (const auto* bar = dynamic_cast<const wxToolBar*>(&window)) ReadTools(*bar);
    for (const wxWindow* child : window.GetChildren())
      if (!child->IsTopLevel()) Read(*child);
  }

  void ReadMenu(const wxMenu& menu) {
    for (const wxMenuItem* item : menu.GetMenuItems()) {
      Add(item->GetItemLabel().BeforeFirst('\t'));
      Add(item->GetHelp());
      if (item->IsSubMenu()) ReadMenu(*item->GetSubMenu());
    }
  }

  void Add(const wxString& text) {
    wxString plain = wxControl::RemoveMnemonics(text);
    // A long text is broken into lines.
    plain.Replace("\n", " ");
    if (!plain.empty()) texts.insert(plain);
  }

 private:
  template <typename... Kinds>
  static bool IsOneOf(const wxWindow& window) {
    return (dynamic_cast<const Kinds*>(&window) || ...);
  }

  void ReadList(const wxListCtrl& list) {
    for (int column = 0; column < list.GetColumnCount(); ++column) {
      wxListItem heading;
      heading.SetMask(wxLIST_MASK_TEXT);
      list.GetColumn(column, heading);
      Add(heading.GetText());
      for (int row = 0; row < list.GetItemCount(); ++row) Add(list.GetItemText(row, column));
    }
  }

  void ReadNode(const wxTreeCtrl& tree, const wxTreeItemId& node) {
    if (!node.IsOk()) return;
    if (node != tree.GetRootItem() || !tree.HasFlag(wxTR_HIDE_ROOT)) Add(tree.GetItemText(node));
    wxTreeItemIdValue cookie = nullptr;
    for (auto child = tree.GetFirstChild(node, cookie); child.IsOk(); child = tree.GetNextChild(node, cookie))
      ReadNode(tree, child);
  }

  void ReadTools(const wxToolBar& bar) {
    for (std::size_t place = 0; place < bar.GetToolsCount(); ++place) {
      const wxToolBarToolBase* tool = bar.GetToolByPos(static_cast<int>(place));
      Add(tool->GetLabel());
      Add(tool->GetShortHelp());
    }
  }
};

/// All texts of a language, to be compared with what a form shows.
class Vocabulary {
 public:
  explicit Vocabulary(int code) {
    const auto file = LanguageFile::Load(GetResource().LanguageFolder() / (std::to_string(code) + ".xml"));
    for (const auto& [number, text] : file.Texts()) {
      Add(text);
      Add(wxControl::RemoveMnemonics(text));
    }
    // These are followed by a name, or by a number in brackets.
    for (const int number : {59101, 59102, 59103, 59352, 59662}) Add(file.Text(number).value() + " %1");
    for (const auto& [form, captions] : file.Forms()) {
      Add(file.Title(form).value_or(wxString()));
      for (const auto& [control, caption] : captions) {
        Add(wxControl::RemoveMnemonics(caption.text));
        Add(caption.tip);
      }
    }
  }

  bool Has(const wxString& text) const {
    if (whole_.count(text)) return true;
    for (const auto& pieces : filled_)
      if (Matches(text, pieces)) return true;
    return false;
  }

 private:
  using Pieces = std::vector<wxString>;

  void Add(const wxString& text) {
    Pieces pieces(1);
    std::size_t letters = 0;
    for (std::size_t at = 0; at < text.length(); ++at) {
      if (text[at] == '%' && at + 1 < text.length() && wxIsdigit(text[at + 1])) {
        pieces.emplace_back();
        ++at;
      } else {
        pieces.back() += text[at];
        letters += wxIsalpha(text[at]) ? 1 : 0;
      }
    }
    if (pieces.size() == 1)
      whole_.insert(text);
    else if (letters >= 4)
      filled_.push_back(pieces);
  }

  static bool Matches(const wxString& text, const Pieces& pieces) {
    if (!text.StartsWith(pieces.front()) || !text.EndsWith(pieces.back())) return false;
    std::size_t at = pieces.front().length();
    for (std::size_t piece = 1; piece + 1 < pieces.size(); ++piece) {
      const auto found = text.find(pieces[piece], at);
      if (found == wxString::npos) return false;
      at = found + pieces[piece].length();
    }
    return at + pieces.back().length() < text.length();
  }

  std::set<wxString> whole_;
  std::vector<Pieces> filled_;
};

const Vocabulary& VocabularyOf(int code) {
  static std::map<int, Vocabulary> read;
  const auto known = read.find(code);
  return known != read.end() ? known->second : read.emplace(code, Vocabulary(code)).first->second;
}

}  // namespace

std::set<wxString> ShownTexts(const wxTopLevelWindow& form) {
  Reader reader;
  reader.Read(form);
  const auto* frame = dynamic_cast<const wxFrame*>(&form);
  if (const auto* bar = frame ? frame->GetMenuBar() : nullptr) {
    for (std::size_t menu = 0; menu < bar->GetMenuCount(); ++menu) {
      reader.Add(bar->GetMenuLabel(menu));
      reader.ReadMenu(*bar->GetMenu(menu));
    }
  }
  return reader.texts;
}

void ExpectTextsOfLanguage(const wxTopLevelWindow& form, std::size_t least,
                           const std::set<wxString>& stored) {
  const int present = GetResource().CurrentLanguage();
  std::size_t own = 0;
  for (const auto& text : ShownTexts(form)) {
    if (stored.count(text)) continue;
    if (VocabularyOf(present).Has(text)) {
      ++own;
      continue;
    }
    for (const int code : GetResource().Languages()) {
      EXPECT_FALSE(VocabularyOf(code).Has(text)) << form.GetName().utf8_string() << " shows a text of "
                                                 << code << " in " << present << ": " << text.utf8_string();
    }
  }
  EXPECT_GE(own, least) << form.GetName().utf8_string() << " in " << present;
}

}  // namespace mindloft::test
