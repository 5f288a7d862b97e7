#pragma once

#include <filesystem>
#include <functional>
#include <string>

namespace mindloft::platform {

/// Starts to play a wave file and returns at once; what was playing ends. True when the system takes the
/// order; Windows may find out only later that the file is missing, is no wave file, or that there is no
/// sound device. All of these are silent, never the system's own sound instead.
///
/// The name is in UTF-8. See FindSound for a relative one.
bool PlaySoundFile(const std::string& name);

/// The file that a sound's name means: either kind of slash separates folders, and a relative name starts at
/// the program's folder (a name that begins with "resources" at the resources of an installed program, see
/// ResourceFolder). What is not there is left as it is, for the system to search where it searches.
std::filesystem::path FindSound(const std::string& name);

/// Lets a test hear what would be played (the name as it was given), and answer for the system, until it
/// goes.
class FakeSound {
 public:
  explicit FakeSound(std::function<bool(const std::string&)> play);
  ~FakeSound();
  FakeSound(const FakeSound&) = delete;
  FakeSound& operator=(const FakeSound&) = delete;
};

/// What PlaySoundFile comes to: the system's own.
bool PlayInSystem(const std::filesystem::path& file);

}  // namespace mindloft::platform
