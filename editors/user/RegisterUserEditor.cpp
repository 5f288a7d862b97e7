#include "editors/user/RegisterUserEditor.h"

#include <wx/toplevel.h>
#include <wx/utils.h>

#include "controls/texts/UserEditor.h"
#include "core/Refresh.h"
#include "editors/user/frmUserDetail.h"

namespace mindloft {

void RegisterUserEditor() {
  SetUserEditor([](const std::shared_ptr<Corvane::User>& user) {
    frmUserDetail form(wxGetTopLevelParent(wxGetActiveWindow()));
    form.OpenWindow(user);
    if (form.HasSaved()) GetRefresh()->Notify(ObjectKind::User, ObjectAction::Changed, user);
  });
}

}  // namespace mindloft
