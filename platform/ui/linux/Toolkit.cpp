#include "platform/ui/Toolkit.h"

#include "platform/ui/AccessKeys.h"
#include "platform/ui/linux/EntryStyle.h"
#include "platform/ui/linux/Glyphs.h"
#include "platform/ui/linux/RichTextContexts.h"

namespace mindloft::platform {

void MendToolkit() {
  ShareGlyphs();
  PreferBullets();
  LeadAccessKeys();
  MeasureRichText();
}

}  // namespace mindloft::platform
