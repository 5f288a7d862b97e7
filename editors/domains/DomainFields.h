#pragma once

class wxWindow;

namespace mindloft {

class Error;
namespace Corvane {
class KDomain;
}

/// Brings the puts of a domain together with what somebody else has stored meanwhile; see ResolveConflict.
/// Changes of its users do not stand against each other: additions and removals hold whatever others did.
bool MergeDomain(wxWindow* parent, Corvane::KDomain& domain, const Error& conflict);

}  // namespace mindloft
