#pragma once

namespace mindloft {

/// Switching the language of the running program.
class LanguageMenu {
 public:
  /// The identifier of a language's menu item.
  static int ItemId(int languageCode);
  /// The language of a menu item; 0: it is none.
  static int LanguageOf(int itemId);
  /// Switches, keeps the choice for the next start, and tells all open windows. A language that cannot be
  /// loaded is refused with a message, and nothing changes.
  static void Switch(int languageCode);
};

}  // namespace mindloft
