#pragma once

#include <wx/string.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

#include "controls/explorer/ExplorerRows.h"

class wxWindow;

namespace mindloft {

namespace Corvane {
class DomainContext;
class Server;
}  // namespace Corvane

/// A column of a kind's list: the number of its caption and its width in explorer units.
struct KindColumn {
  int caption;
  int width;
};

/// What a list or a command is about: the server, and the knowledge domain where the kind lives in one.
struct KindScope {
  std::shared_ptr<Corvane::Server> server;
  std::shared_ptr<Corvane::DomainContext> domain;
  wxWindow* owner = nullptr;  ///< of the windows that a command opens
};

/// One object command's way to do it. It is enabled when `action` is there and `allowed` agrees.
struct KindCommand {
  /// The menu item's name in the language files; empty: the kind has no such command.
  wxString name;
  /// Whether the logged-in user's privileges permit it. Empty: everybody may.
  std::function<bool(const KindScope& scope)> allowed;
  /// Carries it out on the objects of those keys (none for a new object); it refuses by itself what `allowed`
  /// would not permit. Empty while no editor is registered for the kind.
  std::function<void(const KindScope& scope, const std::vector<wxString>& keys)> action;
  /// Whether it may be carried out on several objects at once.
  bool onMany = false;
};

/// All that the main window knows of a kind of directory object, or of a folder node: one registration.
struct DirectoryKind {
  wxString key;           ///< of the tree node that lists the kind
  bool inDomain = false;  ///< whether that node lies below a knowledge domain
  std::vector<KindColumn> columns;
  /// The rows of the kind. Empty for a node that lists its own child nodes.
  std::function<std::shared_ptr<ExplorerRows>(const KindScope& scope)> rows;
  /// The notification kind of Refresh; 0: none.
  std::int32_t notifyKind = 0;
  KindCommand create, remove, edit;

  bool IsObject() const { return static_cast<bool>(rows); }
};

}  // namespace mindloft
