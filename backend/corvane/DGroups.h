#pragma once

#include <memory>
#include <string>
#include <vector>

#include "backend/corvane/View.h"
#include "backend/directory/Changes.h"

namespace mindloft::Corvane {

class DGroup;

/// The groups of one knowledge domain.
class DGroups {
 public:
  DGroups(std::shared_ptr<Session> session, ObjectId domain);
  /// Nothing when there is none.
  std::shared_ptr<DGroup> Item(const std::string& id) const;
  /// Those of the groups that there are, in the given order: one question for all.
  std::vector<std::shared_ptr<DGroup>> Items(const std::vector<ObjectId>& ids) const;
  std::int64_t Count() const;
  GroupView View() const;
  /// The group of that kind; nothing when there is none.
  std::shared_ptr<DGroup> OfKind(std::int32_t kind) const;
  /// A new group, stored by its first Update.
  std::shared_ptr<DGroup> Add() const;
  void Delete(const std::vector<ObjectVersion>& groups, const Progress& progress) const;

 private:
  std::shared_ptr<Session> session_;
  ObjectId domain_;
};

}  // namespace mindloft::Corvane
