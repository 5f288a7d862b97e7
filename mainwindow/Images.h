#pragma once

#include "controls/rows/DirectoryImages.h"
