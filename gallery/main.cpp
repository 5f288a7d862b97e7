#include "gallery/GalleryApp.h"

wxIMPLEMENT_APP(mindloft::GalleryApp);
