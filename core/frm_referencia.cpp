#include "core/frm_referencia.h"

namespace cserko {

namespace {
constexpr Color cream{255, 248, 231};
}

frm_referencia::frm_referencia(Session& session)
    : Window(session.platform(), u"frm_referencia", {1500, 1500}, u""), session_(session) {}

void frm_referencia::Load() {
  BackColor = cream;
  Picture = platform().load_picture(session_.alapkönyvtár + u"cserko\\paper.png");
}

} // namespace cserko
