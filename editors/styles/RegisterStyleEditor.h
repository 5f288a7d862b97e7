#pragma once

namespace mindloft {

/// Makes frmStyles the editor that the choice of a style opens. Once, at the program's start.
void RegisterStyleEditor();

}  // namespace mindloft
