#pragma once

#include <memory>
#include <string>
#include <variant>

#include "backend/directory/Changes.h"

namespace mindloft {

namespace Corvane {
class DGroup;
class KDomain;
class Role;
class Users;
}  // namespace Corvane

/// An object that owns a list of users.
using ListOwner = std::variant<std::shared_ptr<Corvane::DGroup>, std::shared_ptr<Corvane::Role>,
                               std::shared_ptr<Corvane::KDomain>>;

/// The owner's identifier; empty while it is new.
std::string IdOf(const ListOwner& owner);
std::string NameOf(const ListOwner& owner);
/// The users in the owner's list as stored now.
std::shared_ptr<Corvane::Users> MembersOf(const ListOwner& owner);
/// Those whom the owner's operation of that name reports: who could be added.
std::shared_ptr<Corvane::Users> GetUsersNotAccessible(const ListOwner& owner);
/// Stores two lists of user identifiers joined by ";" as one change. `progress`: see Progress.
void ChangeMembers(const ListOwner& owner, const std::string& additions, const std::string& removals,
                   const Progress& progress);

}  // namespace mindloft
