#pragma once

#include <wx/xml/xml.h>

#include "controls/bag/PropertyBag.h"

namespace mindloft {

/// The properties among the parameters of a form's control: the names that begin with a capital. The other
/// parameters are the toolkit's own; one that it does not know for any window throws.
PropertyBag ReadBag(const wxXmlNode& control);
/// Adds the properties to a form's control as parameters that ReadBag reads back unchanged.
void WriteBag(const PropertyBag& bag, wxXmlNode& control);

}  // namespace mindloft
