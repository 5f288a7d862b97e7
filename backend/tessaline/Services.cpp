#include "backend/tessaline/Services.h"

#include "backend/tessaline/Text.h"

namespace mindloft {
namespace {

/// Everything that is made once in the process.
struct ServiceSet {
  ServiceOverrides overrides;
  std::shared_ptr<Tessaline::Registry> registry;
  std::unique_ptr<Tessaline::Utility> utility;
  std::unique_ptr<Tessaline::Resource> resource;
  std::unique_ptr<Corvane::Application> application;
  std::shared_ptr<Corvane::Connection> connection;
};

ServiceSet& Set() {
  static ServiceSet set;
  return set;
}

const std::shared_ptr<Tessaline::Registry>& SharedRegistry() {
  auto& set = Set();
  if (!set.registry) {
    set.registry = std::make_shared<Tessaline::Registry>(set.overrides.registry ? set.overrides.registry
                                                                                : platform::SystemRegistry());
  }
  return set.registry;
}

/// A service without state, made at its first use.
template <typename Service>
Service& Only() {
  static Service service;
  return service;
}

}  // namespace

Tessaline::Resource& GetResource() {
  auto& set = Set();
  if (!set.resource) {
    set.resource = std::make_unique<Tessaline::Resource>(SharedRegistry(), set.overrides.languageFolder,
                                                         set.overrides.secrets);
    const auto& problem = set.resource->LastProblem();
    if (!problem.empty()) GetUtility().Log("language file not used: " + ToUtf8(problem));
  }
  return *set.resource;
}

Tessaline::Convert& GetConvert() {
  return Only<Tessaline::Convert>();
}
Tessaline::StringHelper& GetStringHelper() {
  return Only<Tessaline::StringHelper>();
}
Tessaline::Messenger& GetMessenger() {
  return Only<Tessaline::Messenger>();
}
Tessaline::Registry& GetRegistry() {
  return *SharedRegistry();
}

Tessaline::Utility& GetUtility() {
  auto& set = Set();
  if (!set.utility) set.utility = std::make_unique<Tessaline::Utility>(set.overrides.logFolder);
  return *set.utility;
}

Corvane::Application* GetApplication() {
  return Set().application.get();
}

void SetApplication(std::unique_ptr<Corvane::Application> application) {
  auto& set = Set();
  set.connection = application ? application->Connection() : nullptr;
  set.application = std::move(application);
}

std::shared_ptr<Corvane::Connection> GetConnection() {
  return Set().connection;
}

void ResetServices(ServiceOverrides overrides) {
  Set() = ServiceSet();
  Set().overrides = std::move(overrides);
}

}  // namespace mindloft
