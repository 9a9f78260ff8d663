// Settings that the dialogs of several exercises have in common: a frame each, for a dialog that is one of these too:
//
//     class dlg_betűhiány : public SettingsDialog, public WordLanguage, public WordLengths { ...
//
//     dlg_betűhiány::dlg_betűhiány(Session& session)
//         : SettingsDialog(session, ...), WordLanguage(*this, {120, 120}), WordLengths(*this, {120, 1140}, 4) {
//       set_fields({&ud_minbetűszám, &ud_maxbetűszám, &opt_nyelv[0], &opt_nyelv[1]});
//
// The Tab key goes through the frames in the order of the bases.
#pragma once

#include "core/option_group.h"
#include "core/settings.h"

namespace cserko {

/// The frame "Nyelv", 5400 by 900 twips: whether the words are Hungarian, as they are by default, or English.
class WordLanguage {
 public:
  WordLanguage(Parent parent, Point corner);

  Frame frame_nyelv;
  OptionGroup opt_nyelv;

  bool english() const { return opt_nyelv.chosen() == 1; }
};

/// How many letters a word may have.
struct LengthRange {
  int shortest = 0;
  int longest = 0;
  bool allows(int letters) const { return letters >= shortest && letters <= longest; }
  bool operator==(const LengthRange&) const = default;
};

/// The frame "Szavak", 5400 by 1500 twips: the least and the most letters of a word, which limit each other. At first
/// these are the lowest number that is allowed at all and 10; the least goes up to 12, the most to 16.
class WordLengths {
 public:
  WordLengths(Parent parent, Point corner, int lowest);

  Frame Frame1;
  Label lbl_minbetűszám{Frame1, u"lbl_minbetűszám", {120, 360, 3000, 480}, u"Minimális betűszám"};
  TextBox txt_minbetűszám{Frame1, u"txt_minbetűszám", {3240, 360, 720, 480}};
  UpDown ud_minbetűszám;
  Label lbl_maxbetűszám{Frame1, u"lbl_maxbetűszám", {120, 900, 3000, 480}, u"Maximális betűszám"};
  TextBox txt_maxbetűszám{Frame1, u"txt_maxbetűszám", {3240, 900, 720, 480}};
  UpDown ud_maxbetűszám;

  LengthRange lengths() const { return {ud_minbetűszám.value(), ud_maxbetűszám.value()}; }

 private:
  CoupledRange coupled_{ud_minbetűszám, ud_maxbetűszám, 12};
};

} // namespace cserko
