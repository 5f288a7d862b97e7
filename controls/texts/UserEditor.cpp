#include "controls/texts/UserEditor.h"

#include "backend/errors/Error.h"

namespace mindloft {
namespace {

UserEditor& Editor() {
  static UserEditor editor;
  return editor;
}

}  // namespace

void SetUserEditor(UserEditor editor) {
  Editor() = std::move(editor);
}

void EditUser(const std::shared_ptr<Corvane::User>& user) {
  const UserEditor editor = Editor();  // the editor may be replaced while it is open
  if (!editor) throw Error(ErrorNumber::Unexpected, "the program has set no editor for users");
  editor(user);
}

}  // namespace mindloft
