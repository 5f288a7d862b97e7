#include "backend/directory/session/Sessions.h"

#include <cstring>
#include <utility>

#include "backend/directory/FoldedText.h"
#include "backend/directory/session/PasswordHash.h"
#include "platform/Clock.h"
#include "platform/Random.h"

namespace mindloft {
namespace {

/// Random, so that a session cannot be guessed or taken for an older one.
SessionId NewSessionId() {
  SessionId id = 0;
  while (id == 0) {
    std::string bytes = platform::RandomBytes(sizeof id);
    std::memcpy(&id, bytes.data(), sizeof id);
  }
  return id;
}

}  // namespace

Sessions::Account Sessions::FindAccount(const std::string& nameKey) {
  auto row = database_.Prepare("SELECT id, name, password, enabled FROM user WHERE name_key = ?");
  row->BindAll(nameKey);
  if (!row->Step()) return {};
  return {row->Int(0), row->Text(1), row->Text(2), row->Int(3) != 0};
}

void Sessions::Prepare(std::string_view name, std::string_view password) {
  if (!IsPlausible(name, password)) return;
  Account account = FindAccount(FoldedText(name));
  prepared_ = {account.password, std::string(password), PasswordFits(password, account.password)};
}

bool Sessions::Fits(std::string_view password, const std::string& stored) {
  const auto prepared = std::exchange(prepared_, std::nullopt);
  if (prepared && prepared->stored == stored && prepared->password == password) return prepared->fits;
  return PasswordFits(password, stored);
}

SessionId Sessions::Login(std::string_view name, std::string_view password) {
  bool plausible = IsPlausible(name, password);
  std::string key = plausible ? FoldedText(name) : std::string();
  throttle_.Require(key);
  Account account = plausible ? FindAccount(key) : Account();
  bool fits = Fits(plausible ? password : std::string_view(), account.password);
  if (!fits || !account.enabled) {
    throttle_.Failed(key);
    throw Error(ErrorNumber::LoginFailed);
  }
  Record(account, password);
  throttle_.Succeeded(key);
  SessionId session = NewSessionId();
  sessions_[session] = {account.id};
  return session;
}

void Sessions::Record(const Account& account, std::string_view password) {
  sqlite::Transaction transaction(database_);
  // A login is no change of the account: its version stays.
  database_.Prepare("UPDATE user SET last_login = ? WHERE id = ?")
      ->BindAll(platform::NowMilliseconds(), account.id)
      .Run();
  if (PasswordHashIsDated(account.password)) {
    database_.Prepare("UPDATE user SET password = ?1 WHERE id = ?2 AND password = ?3")
        ->BindAll(HashPassword(password), account.id, account.password)
        .Run();
  }
  journal_.Write(account.name, "login", {"user", account.id, account.name});
  transaction.Commit();
}

Caller Sessions::Require(SessionId session) {
  auto found = sessions_.find(session);
  if (found == sessions_.end()) throw Error(ErrorNumber::NotLoggedIn);
  const auto [id, rules] = found->second;
  auto row = database_.Prepare("SELECT name, enabled FROM user WHERE id = ?");
  row->BindAll(id);
  bool exists = row->Step();
  if (exists && row->Int(1) != 0) return {id, row->Text(0), rules};
  sessions_.erase(found);
  throw Error(exists ? ErrorNumber::AccountDisabled : ErrorNumber::NotLoggedIn);
}

}  // namespace mindloft
