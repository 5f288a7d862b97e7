#pragma once

#include <filesystem>
#include <memory>

#include "backend/directory/Changes.h"
#include "backend/directory/Records.h"

namespace mindloft {

/// Fills a directory file with many objects in one transaction and one journal row: the orders and the search
/// index are built once at the end. Rights are not checked and texts are not validated: for the tools, on
/// trusted data. Nothing is kept unless Finish returns.
class DirectoryLoader {
 public:
  explicit DirectoryLoader(const std::filesystem::path& file);
  ~DirectoryLoader();

  /// Ids and versions of the records are given by the loader; it returns the id. Users get no password: they
  /// cannot log in.
  ObjectId AddUser(const UserRecord& user);
  /// With its administrators group.
  ObjectId AddDomain(const DomainRecord& domain);
  /// The administrators group that a domain was added with.
  ObjectId AdministratorsGroup(ObjectId domain);
  ObjectId AddGroup(const GroupRecord& group);
  void AddDomainUser(ObjectId domain, ObjectId user);
  void AddGroupMember(ObjectId group, ObjectId user);
  void AddRoleMember(ObjectId role, ObjectId user);
  void Finish();

 private:
  struct Impl;
  std::unique_ptr<Impl> impl_;
};

}  // namespace mindloft
