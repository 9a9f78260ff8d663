#include "exercises/shared/word_settings.h"

namespace cserko {

WordLanguage::WordLanguage(Parent parent, Point corner)
    : frame_nyelv(parent, u"frame_nyelv", {corner.x, corner.y, 5400, 900}, u"Nyelv"),
      opt_nyelv(frame_nyelv, u"opt_nyelv",
                {{0, {120, 360, 2400, 420}, u"Magyar"}, {1, {2640, 360, 2400, 420}, u"Angol"}}, 0) {}

WordLengths::WordLengths(Parent parent, Point corner, int lowest)
    : Frame1(parent, u"Frame1", {corner.x, corner.y, 5400, 1500}, u"Szavak"),
      ud_minbetűszám(Frame1, u"ud_minbetűszám", {3960, 360, 360, 480}, txt_minbetűszám, {lowest, 10, 1}, lowest),
      ud_maxbetűszám(Frame1, u"ud_maxbetűszám", {3960, 900, 360, 480}, txt_maxbetűszám, {lowest, 16, 1}, 10) {
  for (Label* heading : {&lbl_minbetűszám, &lbl_maxbetűszám}) heading->Centered = false;
  txt_minbetűszám.AccessibleName = lbl_minbetűszám.Caption;
  txt_maxbetűszám.AccessibleName = lbl_maxbetűszám.Caption;
}

} // namespace cserko
