// The colours of the drawing board, in the order of the swatches: below each strong colour lies a pale one of its kind.
#pragma once

#include "platform/elements.h"

#include <array>

namespace cserko {

struct Swatch {
  Color color;
  TextView name;
};

inline constexpr std::array<Swatch, 32> palette{{
    {{0, 0, 0}, u"fekete"},
    {{70, 70, 70}, u"sötétszürke"},
    {{130, 130, 130}, u"szürke"},
    {{101, 67, 33}, u"barna"},
    {{128, 24, 40}, u"bordó"},
    {{214, 40, 40}, u"piros"},
    {{240, 125, 30}, u"narancssárga"},
    {{240, 175, 20}, u"aranysárga"},
    {{250, 225, 40}, u"sárga"},
    {{140, 190, 40}, u"fűzöld"},
    {{40, 140, 60}, u"zöld"},
    {{20, 85, 50}, u"sötétzöld"},
    {{0, 145, 150}, u"türkiz"},
    {{50, 130, 215}, u"kék"},
    {{30, 55, 140}, u"sötétkék"},
    {{115, 50, 150}, u"lila"},
    {{255, 255, 255}, u"fehér"},
    {{205, 205, 205}, u"világosszürke"},
    {{228, 222, 210}, u"gyöngyszín"},
    {{196, 154, 108}, u"világosbarna"},
    {{222, 140, 135}, u"mályvaszín"},
    {{246, 170, 165}, u"lazacszín"},
    {{250, 200, 150}, u"barackszín"},
    {{252, 222, 150}, u"mézszín"},
    {{255, 246, 175}, u"halványsárga"},
    {{205, 228, 150}, u"halvány fűzöld"},
    {{160, 214, 165}, u"világoszöld"},
    {{125, 175, 140}, u"zsályazöld"},
    {{150, 218, 215}, u"világos türkiz"},
    {{165, 205, 245}, u"világoskék"},
    {{140, 155, 215}, u"halvány ibolya"},
    {{236, 120, 175}, u"rózsaszín"},
}};

} // namespace cserko
