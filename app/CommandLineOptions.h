#pragma once

#include <wx/string.h>

#include <filesystem>
#include <vector>

namespace mindloft {

/// The console's command line: `--directory FILE` (or `--directory=FILE`), `--help`, `--version`, in any
/// place before a `--`. Everything else, joined by blanks, is the name of a node: the text that a second
/// instance hands over.
struct CommandLineOptions {
  std::filesystem::path directoryFile;  ///< absolute; empty: the directory file of this computer
  bool directoryIsMissing = false;      ///< `--directory` without a file
  bool help = false;
  bool version = false;
  wxString nodeName;

  /// The arguments after the program's name.
  static CommandLineOptions Parse(const std::vector<wxString>& arguments);
};

}  // namespace mindloft
