#include "core/Refresh.h"

#include <exception>
#include <vector>

#include "core/ErrorHandling.h"

namespace mindloft {
namespace {

template <typename Handler>
std::shared_ptr<Handler> Subscribe(std::list<std::weak_ptr<Handler>>& handlers, Handler handler) {
  handlers.remove_if([](const auto& known) { return known.expired(); });
  auto added = std::make_shared<Handler>(std::move(handler));
  handlers.push_back(added);
  return added;
}

/// Calls each listener that was subscribed at the start and still is when its turn comes. A listener that
/// fails does not keep the others from hearing; the first failure is thrown at the end.
template <typename Handler, typename... Arguments>
void RaiseEvent(const std::list<std::weak_ptr<Handler>>& handlers, Arguments&... arguments) {
  std::exception_ptr firstFailure;
  for (const auto& known : std::vector<std::weak_ptr<Handler>>(handlers.begin(), handlers.end())) {
    auto handler = known.lock();
    if (!handler) continue;
    try {
      (*handler)(arguments...);
    } catch (...) {
      if (!firstFailure) firstFailure = std::current_exception();
    }
  }
  if (firstFailure) std::rethrow_exception(firstFailure);
}

}  // namespace

Refresh::Subscription Refresh::OnNotify(NotifyHandler handler) {
  return Subscribe(notifyHandlers_, std::move(handler));
}

Refresh::Subscription Refresh::OnNotifyLanguage(LanguageHandler handler) {
  return Subscribe(languageHandlers_, std::move(handler));
}

Refresh::Subscription Refresh::BeforeNotifyLanguage(LanguageHandler handler) {
  return Subscribe(firstLanguageHandlers_, std::move(handler));
}

void Refresh::Notify(std::int32_t kind, std::int32_t action, std::any object) try {
  if (enabled_) RaiseEvent(notifyHandlers_, kind, action, object);
} catch (...) {
  Raise("Refresh", "Notify");
}

void Refresh::Notify(ObjectKind kind, ObjectAction action, std::any object) {
  Notify(static_cast<std::int32_t>(kind), static_cast<std::int32_t>(action), std::move(object));
}

void Refresh::NotifyLanguage() try {
  if (!enabled_) return;
  auto all = firstLanguageHandlers_;
  all.insert(all.end(), languageHandlers_.begin(), languageHandlers_.end());
  RaiseEvent(all);
} catch (...) {
  Raise("Refresh", "NotifyLanguage");
}

std::shared_ptr<Refresh> GetRefresh() {
  static const auto refresh = std::make_shared<Refresh>();
  return refresh;
}

}  // namespace mindloft
