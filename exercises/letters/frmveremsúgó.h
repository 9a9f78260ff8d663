// The rules of Tekergő as a panel. The menu of the game opens the page of the help instead.
#pragma once

#include "core/session.h"
#include "platform/element_array.h"

namespace cserko {

class frmveremsúgó : public Window {
 public:
  explicit frmveremsúgó(Session& session);

  Frame Frame1{*this, u"Frame1", {120, 120, 6300, 2280}, u"A feladat"};
  Frame Frame2{*this, u"Frame2", {120, 2520, 6300, 2760}, u"Mozgások"};
  Frame Frame3{*this, u"Frame3", {120, 5400, 6300, 1560}, u"A győzelem"};
  Frame Frame4{*this, u"Frame4", {6540, 120, 6300, 2280}, u"A vereség"};
  Frame Frame5{*this, u"Frame5", {6540, 2520, 6300, 2760}, u"Beállítási lehetőségek"};
  Frame Frame6{*this, u"Frame6", {6540, 5400, 6300, 1560}, u"Segítség"};
  /// One text in each group.
  Label& lab(int index) { return *lab_.at(static_cast<std::size_t>(index)); }
  Button OKButton{*this, u"OKButton", {5520, 7080, 1920, 660}, u"OK"};

  void Load() override;

 private:
  Session& session_;
  std::vector<std::unique_ptr<Label>> lab_;
};

} // namespace cserko
