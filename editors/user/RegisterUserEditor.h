#pragma once

namespace mindloft {

/// Makes frmUserDetail the editor that a `UserText` opens. Once, at the program's start.
void RegisterUserEditor();

}  // namespace mindloft
