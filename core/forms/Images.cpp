#include "core/forms/Images.h"

#include <chrono>
#include <future>
#include <map>
#include <utility>

#include "backend/tessaline/Text.h"
#include "platform/Beside.h"
#include "platform/EmbeddedFile.h"

namespace mindloft {
namespace {

/// Title bar and task switcher, in pixels; the system scales the rest.
constexpr int kIconSizes[] = {16, 32};

constexpr const char* kProgramIcon = "app";

using DrawnImages = std::map<std::pair<wxString, int>, wxBitmapBundle>;

/// Empty until BeginDrawingImages, and again once the drawings are taken.
std::future<DrawnImages> drawing;

/// Those that were drawn beside the start, as far as they are finished.
const DrawnImages& Drawn() {
  static DrawnImages drawn;
  if (drawing.valid() && drawing.wait_for(std::chrono::seconds(0)) == std::future_status::ready)
    drawn = drawing.get();
  return drawn;
}

wxBitmapBundle ReadImage(const wxString& name, int size) {
  const auto svg = platform::EmbeddedFile("images/" + ToUtf8(name) + ".svg");
  if (svg.empty()) return {};
  // The toolkit parses the text in place, so it gets a copy.
  const std::string text(svg);
  return wxBitmapBundle::FromSVG(text.c_str(), wxSize(size, size));
}

}  // namespace

wxBitmapBundle LoadImage(const wxString& name, int size) {
  const auto& drawn = Drawn();
  const auto found = drawn.find({name, size});
  return found != drawn.end() ? found->second : ReadImage(name, size);
}

wxIconBundle WindowIcons() {
  wxIconBundle icons;
  for (const int size : kIconSizes) {
    wxIcon icon;
    icon.CopyFromBitmap(LoadImage(kProgramIcon, size).GetBitmap(wxSize(size, size)));
    icons.AddIcon(icon);
  }
  return icons;
}

std::vector<WantedImage> WindowIconImages() {
  std::vector<WantedImage> images;
  for (const int size : kIconSizes) images.push_back({kProgramIcon, size});
  return images;
}

void BeginDrawingImages(std::vector<WantedImage> images, double scale) {
  drawing = platform::Beside([images = std::move(images), scale] {
    DrawnImages drawn;
    for (const auto& [name, size] : images) {
      auto image = ReadImage(name, size);
      // An image keeps the bitmap that was asked of it last.
      image.GetBitmap(image.GetPreferredBitmapSizeAtScale(scale));
      drawn.emplace(std::pair(name, size), std::move(image));
    }
    return drawn;
  });
}

}  // namespace mindloft
