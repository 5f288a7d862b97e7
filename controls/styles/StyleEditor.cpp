#include "controls/styles/StyleEditor.h"

#include <utility>

#include "backend/directory/Privileges.h"
#include "backend/errors/Error.h"
#include "core/modShare.h"

namespace mindloft {
namespace {

StyleEditor& Editor() {
  static StyleEditor editor;
  return editor;
}

}  // namespace

void SetStyleEditor(StyleEditor editor) {
  Editor() = std::move(editor);
}

bool MayEditStyles() {
  return Editor() && CheckSysPrivilege(ManageStyles);
}

void EditStyles(wxWindow* parent) {
  const StyleEditor editor = Editor();
  if (!editor) throw Error(ErrorNumber::Unexpected, "the program has set no editor for styles");
  editor(parent);
}

}  // namespace mindloft
