#include "backend/corvane/Log.h"

namespace mindloft::Corvane {

JournalView Log::View() const {
  return JournalView(session_, Collection::Journal);
}

}  // namespace mindloft::Corvane
