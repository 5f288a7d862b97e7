#include "platform/ui/Toolkit.h"

#include "platform/ui/AccessKeys.h"
#include "platform/ui/linux/RichTextContexts.h"

namespace mindloft::platform {

void MendToolkit() {
  LeadAccessKeys();
  MeasureRichText();
}

}  // namespace mindloft::platform
