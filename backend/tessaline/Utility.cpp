#include "backend/tessaline/Utility.h"

#include <algorithm>
#include <deque>
#include <utility>
#include <vector>

#include "backend/tessaline/LogFile.h"
#include "backend/tessaline/Text.h"
#include "platform/Paths.h"

namespace mindloft::Tessaline {
namespace {

namespace fs = std::filesystem;

bool IsFile(const fs::path& path) {
  std::error_code failure;
  return fs::is_regular_file(path, failure);
}

/// The folders directly in `folder`, by name; links are not followed, so that a walk ends.
std::vector<fs::path> Subfolders(const fs::path& folder) {
  std::vector<fs::path> found;
  std::error_code failure;
  fs::directory_iterator entries(folder, fs::directory_options::skip_permission_denied, failure);
  for (; !failure && entries != fs::directory_iterator(); entries.increment(failure)) {
    std::error_code unreadable;
    bool link = entries->is_symlink(unreadable);
    if (!unreadable && !link && entries->is_directory(unreadable)) found.push_back(entries->path());
  }
  std::sort(found.begin(), found.end());
  return found;
}

/// A path that stays below the folder that it is joined to; empty when the text is none.
fs::path RelativePath(const wxString& fileName) {
  wxString text = fileName;
  text.Replace("\\", "/");
  while (text.StartsWith("/")) text.erase(0, 1);
  fs::path relative = platform::PathFromUtf8(ToUtf8(text));
  bool leavesFolder = relative.is_absolute() || relative.has_root_name() ||
                      std::find(relative.begin(), relative.end(), "..") != relative.end();
  return leavesFolder ? fs::path() : relative;
}

}  // namespace

Utility::Utility(fs::path logFolder) : logFolder_(std::move(logFolder)) {}

Utility::~Utility() = default;

wxString Utility::LocateFile(const wxString& fileName, const wxString& folder) const {
  fs::path relative = RelativePath(fileName);
  if (relative.empty() || folder.empty()) return {};
  std::deque<fs::path> folders{platform::PathFromUtf8(ToUtf8(folder))};
  for (; !folders.empty(); folders.pop_front()) {
    fs::path candidate = (folders.front() / relative).make_preferred();
    if (IsFile(candidate)) return ToWx(platform::PathToUtf8(candidate));
    auto below = Subfolders(folders.front());
    folders.insert(folders.end(), below.begin(), below.end());
  }
  return {};
}

bool Utility::FileExists(const wxString& path) const {
  return !path.empty() && IsFile(platform::PathFromUtf8(ToUtf8(path)));
}

MessageKind Utility::ErrorKind(ErrorNumber number) const {
  if (!IsApplicationError(number)) return MessageKind::Critical;
  switch (number) {
    // Stored data cannot be trusted or used: work must stop here.
    case ErrorNumber::DirectoryForeign:
    case ErrorNumber::DirectoryDamaged:
    case ErrorNumber::DirectoryNewer:
    case ErrorNumber::ConfigurationDamaged:
      return MessageKind::Critical;
    // What the user is told and need not mend.
    case ErrorNumber::Cancelled:
      return MessageKind::Information;
    default:
      break;
  }
  bool known = number >= ErrorNumber::DirectoryNotFound && number <= ErrorNumber::SecretNotProtected;
  return known ? MessageKind::Exclamation : MessageKind::Information;
}

void Utility::ReportError(const std::string& objectName, const std::string& procedureName,
                          ErrorNumber& number, Error& error, int line) {
  error.AddProcedure(objectName, procedureName);
  number = error.Number();
  std::string record = "error " + std::to_string(static_cast<int>(number)) + " " + objectName + "." +
                       procedureName + " line " + std::to_string(line) + ": " + error.Description();
  for (const auto& parameter : error.Parameters()) record += " [" + parameter + "]";
  Log(record);
}

void Utility::Log(const std::string& line) noexcept {
  try {
    if (!log_) log_ = std::make_unique<LogFile>(LogFilePath());
    log_->Write(line);
  } catch (...) {
    log_.reset();  // nowhere to tell it; the next line tries again
  }
}

fs::path Utility::LogFilePath() const {
  return (logFolder_.empty() ? platform::LogFolder() : logFolder_) / "mindloft-console.log";
}

void Utility::Refresh() {
  // A view may come or go while the others are called.
  for (const auto& known : std::vector<std::weak_ptr<std::function<void()>>>(views_.begin(), views_.end())) {
    const auto view = known.lock();
    if (!view) continue;
    try {
      (*view)();
    } catch (...) {
      Error error = CurrentError();
      ErrorNumber number{};
      ReportError("Utility", "Refresh", number, error, error.LineIn("Refresh"));
    }
  }
}

std::shared_ptr<void> Utility::OnRefresh(std::function<void()> view) {
  views_.remove_if([](const auto& known) { return known.expired(); });
  auto added = std::make_shared<std::function<void()>>(std::move(view));
  views_.push_back(added);
  return added;
}

}  // namespace mindloft::Tessaline
