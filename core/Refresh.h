#pragma once

#include <any>
#include <cstdint>
#include <functional>
#include <list>
#include <memory>

namespace mindloft {

/// Kinds and actions of change notifications.
enum class ObjectKind : std::int32_t { Domain = 1, UserGroup = 2, User = 3, DomainUser = 4 };
enum class ObjectAction : std::int32_t { Created = 1, Deleted = 2, Changed = 3 };

/// The single change and language notifier. Events are raised synchronously; the sender goes on when every
/// listener has finished. Listeners may subscribe and unsubscribe, themselves included, while an event is
/// raised.
class Refresh {
 public:
  /// Kind and action are plain numbers, as senders may use numbers that no listener knows. The object is a
  /// shared_ptr to DomainContext (kind 1), DGroup (2) or User (3 and 4).
  using NotifyHandler = std::function<void(std::int32_t& kind, std::int32_t& action, std::any& object)>;
  using LanguageHandler = std::function<void()>;

  /// Ends the subscription when it goes.
  using Subscription = std::shared_ptr<void>;

  [[nodiscard]] Subscription OnNotify(NotifyHandler handler);
  [[nodiscard]] Subscription OnNotifyLanguage(LanguageHandler handler);
  /// For what all windows show depends on, so that they show it right at once: hears of a language before the
  /// listeners of OnNotifyLanguage.
  [[nodiscard]] Subscription BeforeNotifyLanguage(LanguageHandler handler);

  void Notify(std::int32_t kind, std::int32_t action, std::any object);
  void Notify(ObjectKind kind, ObjectAction action, std::any object);
  void NotifyLanguage();

  void SetEnabled(bool enabled) { enabled_ = enabled; }
  bool Enabled() const { return enabled_; }

 private:
  bool enabled_ = true;
  std::list<std::weak_ptr<NotifyHandler>> notifyHandlers_;
  std::list<std::weak_ptr<LanguageHandler>> languageHandlers_, firstLanguageHandlers_;
};

/// The shared instance, created on the first call.
std::shared_ptr<Refresh> GetRefresh();

}  // namespace mindloft
