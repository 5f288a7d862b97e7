#pragma once

#include <wx/colour.h>
#include <wx/settings.h>

#include <cstdint>

namespace mindloft {

/// A colour as a property bag keeps it: red, green and blue in the lowest three bytes (red the lowest), or,
/// with the highest bit set, one of the system's colours by its index.
class ControlColour {
 public:
  constexpr ControlColour() = default;
  constexpr explicit ControlColour(std::uint32_t value) : value_(value) {}
  explicit ControlColour(const wxColour& colour)
      : value_(static_cast<std::uint32_t>(colour.Red()) | static_cast<std::uint32_t>(colour.Green()) << 8 |
               static_cast<std::uint32_t>(colour.Blue()) << 16) {}

  constexpr std::uint32_t Value() const { return value_; }
  constexpr bool IsSystem() const { return (value_ & kSystem) != 0; }
  /// The colour to draw with. A system colour follows the desktop's theme of the moment; an index that the
  /// system does not have is black.
  wxColour Resolve() const;
  friend constexpr bool operator==(ControlColour, ControlColour) = default;

  static constexpr std::uint32_t kSystem = 0x80000000;

 private:
  std::uint32_t value_ = 0;
};

// The system's colours that the controls use.
inline constexpr ControlColour kWindowColour{0x80000005};
inline constexpr ControlColour kWindowTextColour{0x80000008};
inline constexpr ControlColour kButtonFaceColour{0x8000000F};
inline constexpr ControlColour kButtonShadowColour{0x80000010};
inline constexpr ControlColour kButtonTextColour{0x80000012};
inline constexpr ControlColour k3DHighlightColour{0x80000014};
inline constexpr ControlColour k3DDarkShadowColour{0x80000015};
inline constexpr ControlColour k3DLightColour{0x80000016};

}  // namespace mindloft
