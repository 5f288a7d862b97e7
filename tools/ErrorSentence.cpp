#include "tools/ErrorSentence.h"

#include <string_view>

namespace mindloft {
namespace {

struct Sentence {
  ErrorNumber number;
  std::string_view
      text;  ///< "%f" is the file, "%1" and "%2" are the error's parameters, "%d" its description
};

constexpr Sentence kSentences[] = {
    {ErrorNumber::OutOfMemory, "There is not enough memory."},
    {ErrorNumber::DiskFull, "The disk that holds %f is full."},
    {ErrorNumber::PathAccess, "%f cannot be read or written: %d"},
    {ErrorNumber::Storage, "The database engine failed on %f: %d"},
    {ErrorNumber::DirectoryNotFound, "There is no file %f."},
    {ErrorNumber::DirectoryExists, "%f is there already; --force replaces it."},
    {ErrorNumber::DirectoryForeign, "%f is no directory."},
    {ErrorNumber::DirectoryDamaged, "%f is damaged: %d"},
    {ErrorNumber::DirectoryNewer, "%f was written by a newer version of this program."},
    {ErrorNumber::DirectoryReadOnly, "%f cannot be written."},
    {ErrorNumber::DirectoryBusy, "%f is in use by another program."},
    {ErrorNumber::PasswordTooShort, "A password needs at least %1 characters."},
    {ErrorNumber::PasswordTooLong, "A password may have at most %1 bytes."},
    {ErrorNumber::NameMissing, "The administrator's name is missing."},
    {ErrorNumber::NameExists, "The name %1 is in use already."},
    {ErrorNumber::TextTooLong, "The text of \"%1\" is longer than %2 characters."},
    {ErrorNumber::TextInvalid, "The text of \"%1\" holds characters that are not allowed."},
};

std::string_view Parameter(const Error& error, std::size_t index) {
  return index < error.Parameters().size() ? std::string_view(error.Parameters()[index])
                                           : std::string_view("?");
}

}  // namespace

std::string ErrorSentence(const Error& error, const std::string& file) {
  std::string_view text = "An unexpected error on %f: %d";
  for (const auto& sentence : kSentences) {
    if (sentence.number == error.Number()) text = sentence.text;
  }
  std::string result;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] != '%' || i + 1 == text.size()) {
      result += text[i];
      continue;
    }
    switch (text[++i]) {
      case 'f':
        result += file;
        break;
      case 'd':
        result += error.Description();
        break;
      default:
        result += Parameter(error, static_cast<std::size_t>(text[i] - '1'));
    }
  }
  return result;
}

}  // namespace mindloft
