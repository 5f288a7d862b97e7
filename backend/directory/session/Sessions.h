#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

#include "backend/directory/Directory.h"
#include "backend/directory/session/Caller.h"
#include "backend/directory/session/LoginThrottle.h"
#include "backend/directory/store/Journal.h"

namespace mindloft {

/// Who is logged in at this process. A session ends with Logout and when its user is deleted or disabled, by
/// whomever.
class Sessions {
 public:
  Sessions(sqlite::Database& database, Journal& journal, LoginThrottle& throttle)
      : database_(database), journal_(journal), throttle_(throttle) {}

  /// Writes the time of the login and its journal row, in a transaction of its own.
  SessionId Login(std::string_view name, std::string_view password);
  /// Compares the password ahead of the next Login.
  void Prepare(std::string_view name, std::string_view password);
  void Logout(SessionId session) { sessions_.erase(session); }
  void SetRules(SessionId session, LanguageRules rules) { sessions_.at(session).rules = rules; }
  /// NotLoggedIn for an unknown session or a deleted user, AccountDisabled.
  Caller Require(SessionId session);

 private:
  struct Account {
    ObjectId id = 0;
    std::string name, password;
    bool enabled = false;
  };
  /// Who has logged in, and in which language.
  struct Entry {
    ObjectId user = 0;
    LanguageRules rules = LanguageRules::Neutral;
  };
  /// A comparison that was made ahead.
  struct Comparison {
    std::string stored, password;
    bool fits = false;
  };
  /// Longer texts cannot be right, and would only cost time and memory.
  static bool IsPlausible(std::string_view name, std::string_view password) {
    return name.size() <= 1024 && password.size() <= Directory::kMaximumPasswordBytes;
  }
  Account FindAccount(const std::string& nameKey);
  /// The prepared answer where it is one to this question; it answers once.
  bool Fits(std::string_view password, const std::string& stored);
  void Record(const Account& account, std::string_view password);

  sqlite::Database& database_;
  Journal& journal_;
  LoginThrottle& throttle_;
  std::unordered_map<SessionId, Entry> sessions_;
  std::optional<Comparison> prepared_;
};

}  // namespace mindloft
