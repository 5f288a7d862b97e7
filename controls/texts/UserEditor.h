#pragma once

#include <functional>
#include <memory>

#include "backend/corvane/User.h"

namespace mindloft {

/// Opens the editor of a user and returns when it has been closed.
using UserEditor = std::function<void(const std::shared_ptr<Corvane::User>& user)>;

/// The process's one. The editor is a form above the controls, so the program hands it in at its start; an
/// empty one takes it away.
void SetUserEditor(UserEditor editor);

/// Throws Unexpected when the program has not set an editor.
void EditUser(const std::shared_ptr<Corvane::User>& user);

}  // namespace mindloft
