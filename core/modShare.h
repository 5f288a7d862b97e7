#pragma once

#include <wx/string.h>

#include <cstdint>
#include <memory>

#include "backend/corvane/DomainContext.h"

class wxTopLevelWindow;

namespace mindloft {

class ctExplorer;

/// 32 upper-case hexadecimal digits: the four 32-bit words of a new GUID, the last first. When the platform
/// gives none, message 25005 is shown and the text is made of the empty buffer all the same.
wxString CreateGUID();
/// Counts from 1 in this process; Overflow past the largest 32-bit value.
std::int32_t CreateId();

/// Whether the logged-in user holds the system privilege; false when nobody is logged in.
bool CheckSysPrivilege(std::uint32_t privilege);
/// False without a context.
bool CheckDomainPrivilege(const std::shared_ptr<Corvane::DomainContext>& context, std::uint32_t privilege);
/// Whether the logged-in user is a member of the domain's administrators group.
bool GetCurrUserIsCurrDomainAdminstratorUser(const std::shared_ptr<Corvane::DomainContext>& context);

/// Saves the form's rectangle (normal state only) and state under its name.
void SetFormPos(wxTopLevelWindow& form);
/// Restores them; `fullScreen` stretches a window that has no stored position, or a maximized one, first.
void LoadFormPos(wxTopLevelWindow& form, bool fullScreen);
/// Puts the form at the origin and sizes it to the screen's working area.
void FullScreen(wxTopLevelWindow& form);

/// The url, trimmed, with `replacement` instead of its first characters when these are `prefix` in any case.
wxString SetURL(const wxString& url, const wxString& prefix, const wxString& replacement);

/// Unloads all open forms, the last first; false when one refused. A form that calls it while it is being
/// unloaded itself names itself in `except`.
bool Shutdown(const wxTopLevelWindow* except = nullptr);

}  // namespace mindloft
