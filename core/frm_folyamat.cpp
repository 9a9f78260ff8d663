#include "core/frm_folyamat.h"

#include "core/frame.h"

namespace cserko {

FrmFolyamat::FrmFolyamat(Session& session)
    : Window(session.platform(), u"FrmFolyamat", {6000, 1200}, u""), session_(session) {}

void FrmFolyamat::Load() { ablak_középre(session_, *this); }

} // namespace cserko
