#include "feedback/feedback.h"

#include "feedback/frm_dobszerkó.h"
#include "feedback/frm_hangbeáll.h"
#include "feedback/frm_rajz.h"
#include "feedback/frm_zenebeáll.h"
#include "feedback/message_panels.h"
#include "feedback/sounds.h"

namespace cserko {

void install_feedback(Session& session) {
  session.feedback.hang_lejátszás = [&session](const Text& text) { hang_lejátszás(session, Text(text)); };
  session.feedback.zene_lejátszás = [&session](const Text& text) { zene_lejátszás(session, text); };
  session.feedback.tell = [&session](const Text& text) {
    auto& panel = session.window<szövegüzenet>();
    panel.szöveg.set_caption(text);
    session.platform().show_modal(panel);
  };
  session.offer<frm_hangbeáll>(u"frm_hangbeáll");
  session.offer<frm_zenebeáll>(u"frm_zenebeáll");
  session.offer<frm_dobszerkó>(u"frm_dobszerkó");
  session.offer<frm_rajz>(u"frm_rajz");
}

} // namespace cserko
