#pragma once

#include <memory>
#include <string>

#include "backend/corvane/View.h"
#include "backend/directory/Changes.h"

namespace mindloft::Corvane {

class DomainContext;
class KDomain;

/// The knowledge domains of the server. `Item` gives the domain as the logged-in user sees it.
class KDomains {
 public:
  explicit KDomains(std::shared_ptr<Session> session) : session_(std::move(session)) {}
  /// A new domain, stored by its first Update.
  std::shared_ptr<KDomain> Add() const;
  /// The key is the domain's identifier; nothing when there is none.
  std::shared_ptr<DomainContext> Item(const std::string& key) const;
  std::int64_t Count() const;
  DomainView View() const;
  /// A context for a record that a view returned.
  std::shared_ptr<DomainContext> Context(const DomainRecord& record) const;
  void Delete(const ObjectVersion& domain, const Progress& progress = {}) const;

 private:
  std::shared_ptr<Session> session_;
};

}  // namespace mindloft::Corvane
