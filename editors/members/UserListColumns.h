#pragma once

namespace mindloft {

class ctExplorer;

/// Prepares an explorer that lists users: images, break character, the columns name, full name and
/// description in the current language, and the hint of its search box. The rows that it shows stay.
void ShowUserColumns(ctExplorer& ctUser);

}  // namespace mindloft
