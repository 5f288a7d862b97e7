#pragma once

class wxXmlResource;

namespace mindloft {

/// Makes the console's own controls known to a form resource; once per resource object.
void AddControlHandlers(wxXmlResource& resource);

}  // namespace mindloft
