#include "controls/bag/ControlColour.h"

namespace mindloft {

wxColour ControlColour::Resolve() const {
  if (!IsSystem())
    return {static_cast<unsigned char>(value_ & 0xFF), static_cast<unsigned char>(value_ >> 8 & 0xFF),
            static_cast<unsigned char>(value_ >> 16 & 0xFF)};
  // The toolkit counts the system's colours as the system does.
  const auto index = value_ & ~kSystem;
  if (index >= wxSYS_COLOUR_MAX) return *wxBLACK;
  return wxSystemSettings::GetColour(static_cast<wxSystemColour>(index));
}

}  // namespace mindloft
