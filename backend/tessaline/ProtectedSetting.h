#pragma once

#include <wx/string.h>

#include <functional>
#include <memory>
#include <string>

#include "backend/tessaline/Registry.h"
#include "platform/SecretStore.h"

namespace mindloft::Tessaline {

/// A text of the current user's registry that only this user can read: the registry holds a token of it,
/// under the setting's name and "Protected". A text that stands there in the clear, under the setting's name
/// alone, counts before the token; it is taken over at the next reading, and goes from the registry once the
/// secret store gives it back.
class ProtectedSetting {
 public:
  /// `secrets` empty: the system's.
  ProtectedSetting(std::shared_ptr<Registry> registry, std::shared_ptr<platform::SecretStore> secrets,
                   const wxString& keyPath, const wxString& name);

  /// Empty when there is none, or the secret store does not give it back.
  wxString Read();
  /// Protects and stores the text; an empty one removes it. Throws what the store and the registry throw; the
  /// old text is then still there.
  void Write(const wxString& text);
  /// Takes over what stands in the clear; does nothing else.
  void TakeOver();
  /// Reads the registry at once, changes nothing, and returns how to get the text (UTF-8), which may be
  /// called on any thread.
  std::function<std::string()> Reader() const;

 private:
  wxString ClearText() const;
  std::string Token() const;
  void Store(const std::string& text);
  platform::SecretStore& Secrets() const;

  std::shared_ptr<Registry> registry_;
  mutable std::shared_ptr<platform::SecretStore> secrets_;
  wxString keyPath_;
  wxString name_;
};

}  // namespace mindloft::Tessaline
