#include "platform/ui/VisualStyle.h"

#include <wx/window.h>

#include <optional>

namespace mindloft::platform {
namespace {

std::optional<bool> fakeStyles;

}  // namespace

struct VisualStyle::Impl {
  void* handle = nullptr;
};

VisualStyle::VisualStyle(const wxWindow& window, const wxString& themeClass)
    : impl_(std::make_unique<Impl>(Impl{OpenStyleClass(window, themeClass)})) {}

VisualStyle::~VisualStyle() {
  if (impl_->handle) CloseStyleClass(impl_->handle);
}

bool VisualStyle::IsOpen() const {
  return fakeStyles ? *fakeStyles : impl_->handle != nullptr;
}

FakeVisualStyles::FakeVisualStyles(bool areOn) {
  fakeStyles = areOn;
}
FakeVisualStyles::~FakeVisualStyles() {
  fakeStyles.reset();
}

}  // namespace mindloft::platform
