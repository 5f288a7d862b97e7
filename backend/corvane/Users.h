#pragma once

#include <memory>
#include <string>
#include <vector>

#include "backend/corvane/View.h"
#include "backend/directory/Changes.h"

namespace mindloft::Corvane {

class User;

/// A collection of users: all of them, a domain's, a group's or a role's members.
class Users {
 public:
  Users(std::shared_ptr<Session> session, Collection collection, ObjectId scope);
  /// Nothing when the collection has no user of that identifier; no error.
  std::shared_ptr<User> Item(const std::string& id) const;
  /// Those of the directory's users whom there are, whether in the collection or not, in the given order: one
  /// question for all.
  std::vector<std::shared_ptr<User>> Items(const std::vector<ObjectId>& ids) const;
  /// Those of the users who are in the collection, in the given order, with their versions: one question for
  /// all.
  std::vector<ObjectVersion> Versions(const std::vector<ObjectId>& ids) const;
  std::int64_t Count() const;
  UserView View() const;
  /// A new user, stored by its first Update.
  std::shared_ptr<User> Add() const;
  /// Deletes users from the directory (collection of all users), or takes them out of the collection.
  void Delete(const std::vector<ObjectVersion>& users, const Progress& progress = {}) const;

 private:
  /// What the collection is a list of, and whose it is, for taking members out.
  Membership OwnMembership() const;
  ObjectVersion Owner() const;

  std::shared_ptr<Session> session_;
  Collection collection_;
  ObjectId scope_;
};

}  // namespace mindloft::Corvane
