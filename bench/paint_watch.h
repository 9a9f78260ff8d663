// Tells the one who started this program when its window has been painted, and stays until the input ends.
#pragma once

#include <QApplication>
#include <QEvent>
#include <QSocketNotifier>
#include <QTimer>
#include <QWidget>
#include <cstdio>

namespace cserko {

class PaintWatch : public QObject {
 public:
  /// Waits for the first painting of the top-level window of that title.
  explicit PaintWatch(QString title) : title_(std::move(title)) {
    QCoreApplication::instance()->installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (painted_ || event->type() != QEvent::Paint || !watched->isWidgetType()) return false;
    if (static_cast<QWidget*>(watched)->window()->windowTitle() != title_) return false;
    painted_ = true;
    // The whole window is painted in one go; what follows comes after it.
    QTimer::singleShot(0, this, [] {
      std::puts("painted");
      std::fflush(stdout);
    });
    return false;
  }

 private:
  QString title_;
  bool painted_ = false;
};

} // namespace cserko
