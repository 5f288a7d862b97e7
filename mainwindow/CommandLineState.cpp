#include "mainwindow/CommandLineState.h"

namespace mindloft {

wxString& SavedCommandLine() {
  static wxString commandLine;
  return commandLine;
}

}  // namespace mindloft
