#pragma once

#include <wx/string.h>

#include <filesystem>

namespace mindloft::Corvane {
class Connection;
}

namespace mindloft {

/// Where the login dialog logs in: what its server field means.
class LoginTarget {
 public:
  /// Blank or "(local)": the directory file. An address that begins with "http:" or "https:": the web.
  /// Anything else: a configuration server of the local network.
  LoginTarget(const wxString& server, const std::filesystem::path& directoryFile);

  /// The field's text as the client settings give it.
  static wxString ServerOfSettings();

  bool IsLocal() const { return kind_ == Kind::Local; }
  /// This computer's directory file does not exist yet.
  bool IsMissing() const;
  /// One line for the user, with the whole path or name.
  wxString Description() const;
  /// Sets mode, server and the settings that go with them.
  void Apply(Corvane::Connection& connection) const;

 private:
  enum class Kind { Local, Server, Web };

  Kind kind_;
  wxString server_;
  std::filesystem::path file_;
};

}  // namespace mindloft
