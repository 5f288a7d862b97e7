#pragma once

#include <cstdint>

namespace mindloft {

/// Every error number of the program. A number of 10000 or more is also the number of the message that the
/// user reads (resources/languages).
enum class ErrorNumber : std::int32_t {
  // System errors.
  Unexpected = 5,  ///< a standard exception that has no number of its own
  Overflow = 6,    ///< a value does not fit its type
  OutOfMemory = 7,
  TypeMismatch = 13,  ///< a text that is no number, a value of the wrong kind
  DiskFull = 61,
  PathAccess = 75,         ///< reading or writing a file was refused or failed
  Registry = 76,           ///< reading or writing the registry failed
  InvalidExpression = 93,  ///< a malformed XPath expression
  Storage = 95,            ///< the database engine failed

  // The directory file.
  DirectoryNotFound = 60001,
  DirectoryExists = 60002,
  DirectoryForeign = 60003,  ///< the file is no directory
  DirectoryDamaged = 60004,
  DirectoryNewer = 60005,  ///< its schema is newer than this program
  DirectoryReadOnly = 60006,
  DirectoryBusy = 60007,      ///< another console holds it for too long
  ServerUnreachable = 60008,  ///< parameter: the server

  // Logging in and rights.
  LoginFailed = 60020,   ///< wrong name or password; which of them is not told
  LoginDelayed = 60021,  ///< too many failures; parameter: seconds to wait
  NotLoggedIn = 60022,
  AccessDenied = 60023,
  PasswordTooShort = 60024,  ///< parameter: the least number of characters
  PasswordTooLong = 60025,   ///< parameter: the greatest number of bytes
  AccountDisabled = 60026,

  // Changes.
  Conflict = 60040,  ///< changed meanwhile; parameters: object, who, when (UTC, ISO 8601)
  ObjectNotFound = 60041,
  NameMissing = 60042,
  NameExists = 60043,       ///< parameter: the name
  TextTooLong = 60044,      ///< parameters: field, the greatest number of characters
  TextInvalid = 60045,      ///< control characters or broken UTF-8; parameter: field
  LastUserManager = 60046,  ///< the last user who may manage users would go or lose the right
  OwnAccount = 60047,       ///< one's own account cannot be deleted or disabled
  BuiltInObject = 60048,    ///< a built-in group or role; parameter: its name
  Cancelled = 60049,        ///< the user cancelled; nothing was changed
  ConfigurationDamaged = 60050,

  SecretNotProtected = 60060,  ///< a password could not be kept for this user only

  CollationMissing = 60080,  ///< the library of the languages' orders lacks a language's

  // Formatted documents.
  DocumentBroken = 60095,    ///< what was left of its text stands as plain text
  DocumentTooLarge = 60096,  ///< more than a stored document may hold
  DocumentReduced = 60097,   ///< what may not stand in a document was left out
};

/// Whether the number is one of the application's own (message numbers) rather than a system error.
constexpr bool IsApplicationError(ErrorNumber number) {
  return static_cast<std::int32_t>(number) >= 10000;
}

}  // namespace mindloft
