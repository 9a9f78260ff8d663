// Leads through the stops of the tour: waits until the window of a stop is at the front and stands still, looks at it,
// takes its picture, and does what leads to the next.
#pragma once

#include "tests/tour/checks.h"
#include "tests/tour/help_picture.h"
#include "tests/x11/watched_platform.h"

#include <QElapsedTimer>
#include <QImage>
#include <QObject>
#include <functional>
#include <map>
#include <set>

namespace cserko::tour {

inline constexpr TextView main_window = u"frm_főablak";

class Guide : public QObject {
 public:
  /// Pictures go into the folder.
  Guide(WatchedPlatform& platform, QString folder);

  /// The overlaps that are meant to be, for all stops.
  std::vector<Overlap> intended;
  /// A window of that name must have been looked at when the tour ends.
  void must_see(TextView window) { wanted_.insert(Text(window)); }

  /// The picture of that name is also one of the help, and so wide there at most.
  void for_help(const std::string& name, const std::string& help_picture, int width = 622) {
    for_help_[name] = {help_picture, width};
  }

  /// A stop that acts, once the window of that name is at the front and the condition holds.
  void act(TextView window, std::function<void(Window&)> deed, std::function<bool(Window&)> ready = {});
  /// A stop that acts again and again, each time the window of that name is at the front, until the condition holds.
  void repeat(TextView window, std::function<void(Window&)> deed, std::function<bool()> done);
  /// A stop that looks at the window and takes its picture. `moving`: it never stands still.
  void picture(TextView window, const std::string& name, bool moving = false);
  /// A stop that looks at a window while another one stands in front of it.
  void picture_behind(TextView front, std::function<Window&()> behind, const std::string& name);

  /// Looks at a window that is shown outside the stops, as the progress window, which lets no event happen.
  void look_at(Window& window, const std::string& name);

  /// Whether the window of that name is at the front.
  bool at_front(TextView window) const;

  /// Starts to lead; ends the program behind the last stop, or when a stop is not reached.
  void start();
  const std::vector<std::string>& faults() const { return faults_; }
  int pictures() const { return pictures_; }

 private:
  struct Stop {
    Text window;
    std::function<void(Window&)> deed;
    std::function<bool(Window&)> ready;
    std::function<bool()> done; ///< Of a stop that acts again and again.
  };

  void schedule();
  void turn();
  void leave_stop();
  bool framed() const;
  bool stands_still(Window& window);
  void judge(Window& window, const std::string& name, const QImage& image, QPoint client_corner);
  void give_up(const Stop& stop);
  void tell_unseen();
  void fault(const std::string& what);

  WatchedPlatform& platform_;
  QString folder_;
  std::vector<Stop> stops_;
  std::map<std::string, HelpPicture> for_help_;
  std::size_t next_ = 0;
  std::set<Text> wanted_;
  std::set<Text> seen_;
  std::vector<std::string> faults_;
  QElapsedTimer waiting_;
  const Window* front_ = nullptr; ///< What stood at the front at the last look.
  QElapsedTimer at_front_since_;
  QImage last_seen_;
  int pictures_ = 0;
};

} // namespace cserko::tour
