// The question of Tekergő that is answered by yes or no.
#pragma once

#include "core/session.h"

namespace cserko {

class frmveremigennem : public Window {
 public:
  explicit frmveremigennem(Session& session);

  Label Label1{*this, u"Label1", {240, 240, 7080, 3900}};
  Button Command1{*this, u"Command1", {240, 4440, 3420, 840}, u"&Igen"};
  Button Command2{*this, u"Command2", {3900, 4440, 3420, 840}, u"&Nem"};

  /// The answer: True or False. Empty while there is none, also where the window was closed.
  Text Tag;

  void Load() override;

  /// Shows the question and returns whether the answer is yes. Closing the window means no.
  bool ask(TextView question);

 private:
  void answer(TextView tag);

  Session& session_;
};

} // namespace cserko
