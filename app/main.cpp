#include "app/ConsoleApp.h"

wxIMPLEMENT_APP(mindloft::ConsoleApp);
