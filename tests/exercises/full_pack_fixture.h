// A pack in memory on which every exercise can be played.
#pragma once

#include "tests/exercises/exercise_fixture.h"
#include "tests/exercises/picture_memory_fixture.h"

namespace cserko {

class FullPackTest : public ExerciseTest {
 protected:
  FullPackTest() {
    for (const auto& [name, syllables] : {std::pair{u"alma", u"al-ma"},
                                          {u"asszony", u"asz-szony"},
                                          {u"ló", u"ló"},
                                          {u"ó", u"ó"},
                                          {u"pillangó", u"pil-lan-gó"},
                                          {u"szilva", u"szil-va"},
                                          {u"mennyezet", u"meny-nye-zet"},
                                          {u"dzsem", u"dzsem"},
                                          {u"esernyő", u"e-ser-nyő"},
                                          {u"utolsó", u"u-tol-só"}})
      put_full(name, syllables);
    for (const TextView word : memory_words) put_full(Text(word), Text(word));
    // The word chain never tries the last of several words: with these "egér" and "ablak" are not.
    for (const TextView word : {u"eper", u"ajtó"}) put_full(Text(word), Text(word));
    put_app_file(u"betűpár.kvl", u"a-e\r\nk-l\r\n");
    put_app_file(u"irkep\\nyíl.swm", u"Merre mutat a nyíl");
    for (const TextView picture : {u"nyíl_bal", u"nyíl_fel", u"nyíl_jobb", u"nyíl_le"})
      put_app_file(u"irkep\\" + Text(picture) + u".wmf");
    put_app_file(u"ms.skt", u"alam\rmalac\rsok\r");
    start();
    put_answer_sounds();
  }
  void put_full(const Text& name, const Text& syllables) {
    put({.név = name,
         .szótagolt = syllables,
         .angol = u"the " + name,
         .meghatározás = name + u" meghatározása.",
         .igaz = name + u" igaz állítása.",
         .hamis = name + u" hamis állítása."});
  }
};

} // namespace cserko
