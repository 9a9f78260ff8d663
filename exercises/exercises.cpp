#include "exercises/exercises.h"

#include "exercises/boards/frm_betűkeverő.h"
#include "exercises/boards/frm_hosszrövid.h"
#include "exercises/boards/frm_képmemória.h"
#include "exercises/boards/frm_lóugrás.h"
#include "exercises/boards/frm_szólánc.h"
#include "exercises/letters/frm_betűfelesleg.h"
#include "exercises/letters/frm_betűhiány.h"
#include "exercises/letters/frm_betűnézegető.h"
#include "exercises/letters/frm_betűválogatás.h"
#include "exercises/letters/frm_cserkó.h"
#include "exercises/letters/frmverem.h"
#include "exercises/sentences/frm_igazhamis.h"
#include "exercises/sentences/frm_képhatározó.h"
#include "exercises/sentences/frm_mondatkép.h"
#include "exercises/sentences/frm_párosító.h"
#include "exercises/sentences/frm_szóvillám.h"
#include "exercises/syllables/frm_holvan.h"
#include "exercises/syllables/frm_merremutat.h"
#include "exercises/syllables/frm_szótagkereső.h"
#include "exercises/syllables/frm_szótagoló.h"

namespace cserko {

void install_exercises(Session& session) {
  session.offer<frm_betűfelesleg>(u"frm_betűfelesleg");
  session.offer<frm_betűkeverő>(u"frm_betűkeverő");
  session.offer<frm_betűnézegető>(u"frm_betűnézegető");
  session.offer<frm_betűválogatás>(u"frm_betűválogatás");
  session.offer<frm_betűhiány>(u"frm_betűhiány");
  session.offer<frm_cserkó>(u"frm_cserkó");
  session.offer<frm_holvan>(u"frm_holvan");
  session.offer<frm_hosszrövid>(u"frm_hosszrövid");
  session.offer<frm_igazhamis>(u"frm_igazhamis");
  session.offer<frm_képhatározó>(u"frm_képhatározó");
  session.offer<frm_képmemória>(u"frm_képmemória");
  session.offer<frm_merremutat>(u"frm_merremutat");
  session.offer<frm_lóugrás>(u"frm_lóugrás");
  session.offer<frm_mondatkép>(u"frm_mondatkép");
  session.offer<frm_párosító>(u"frm_párosító");
  session.offer<frm_szólánc>(u"frm_szólánc");
  session.offer<frm_szótagkereső>(u"frm_szótagkereső");
  session.offer<frm_szótagoló>(u"frm_szótagoló");
  session.offer<frm_szóvillám>(u"frm_szóvillám");
  session.offer<frmverem>(u"frmverem");
}

} // namespace cserko
