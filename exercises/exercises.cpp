#include "exercises/exercises.h"

#include "exercises/letters/frm_cserkó.h"

namespace cserko {

void install_exercises(Session& session) { session.offer<frm_cserkó>(u"frm_cserkó"); }

} // namespace cserko
