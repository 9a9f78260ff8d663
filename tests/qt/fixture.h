// A real machine with a window of the test's own, a twip a fifteenth of a pixel.
#pragma once

#include "platform/input.h"
#include "platform/qt/qt_platform.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTest>
#include <QWindow>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace cserko::test {

/// Runs handlers as the session does: what one throws ends it and no more.
class PlainHost : public Host {
 public:
  void run_event(Window& window, const std::function<void()>& handler) override {
    try {
      handler();
    } catch (const std::exception& error) {
      window.platform().report_error(from_utf8(error.what()));
    }
  }
  void close_request(Window& window) override {
    ++close_requests;
    if (may_close) window.platform().hide(window);
  }

  int close_requests = 0;
  bool may_close = true;
};

/// A window that writes down what happens to it.
class NotingWindow : public Window {
 public:
  NotingWindow(Platform& machine, Size inner = {6000, 4500}, TextView caption = u"Próba")
      : Window(machine, u"frm_próba", inner, caption) {
    set_inner_size(inner);
    machine.attach(*this);
  }
  ~NotingWindow() override { platform().detach(*this); }

  void Activate() override { ++activations; }
  void KeyDown(KeyEvent& event) override {
    if (event.code != 0) keys.push_back(event);
    if (on_key) on_key(event);
  }
  void MouseDown(const MouseEvent& event) override { presses.push_back(event); }

  std::vector<KeyEvent> keys;
  std::vector<MouseEvent> presses;
  std::function<void(KeyEvent&)> on_key;
  int activations = 0;
};

class QtMachine : public testing::Test {
 protected:
  QtMachine() {
    qputenv("CSERKO_USER_DIR", folder_.path().toUtf8());
    qputenv("CSERKO_PACK_DIR", folder_.path().toUtf8());
    QDir(folder_.path()).mkpath("kepek");
    machine = std::make_unique<QtPlatform>();
    machine->host = &host;
  }

  /// Lets events happen until the condition holds; false if it never does.
  static bool wait_for(const std::function<bool()>& condition) {
    const QDeadlineTimer deadline(10000);
    while (!condition()) {
      if (deadline.hasExpired()) return false;
      QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    }
    return true;
  }

  void show(Window& window) {
    machine->show(window);
    ASSERT_TRUE(wait_for([&] { return view(window).isActiveWindow(); }));
  }

  /// Does something as soon as the window is shown, from within the loop that shows it.
  void when_shown(Window& window, const std::function<void()>& deed) {
    later([this, &window, deed] {
      if (machine->view_of(window) != nullptr && view(window).isActiveWindow()) {
        deed();
      } else {
        when_shown(window, deed);
      }
    });
  }
  /// Looks at the next message box as soon as it stands, and closes it.
  static void answer_box(const std::function<void(QMessageBox&)>& look) {
    later([look] {
      if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
        look(*box);
        box->close();
      } else {
        answer_box(look);
      }
    });
  }
  static void later(const std::function<void()>& deed) { QTimer::singleShot(1, qApp, deed); }

  WindowView& view(const Window& window) const { return *machine->view_of(window); }
  QWidget& widget(const Element& element) const { return *view(element.window()).widget_of(element); }

  /// A point of an element (twips) in the pixels of its window.
  QPoint place(const Element& element, Point point) const {
    const QPoint inside(static_cast<int>(point.x / twips_per_pixel), static_cast<int>(point.y / twips_per_pixel));
    return widget(element).mapTo(widget(element).window(), inside);
  }
  void press(const Element& element, Point point, Qt::MouseButton button = Qt::LeftButton) {
    QTest::mousePress(view(element.window()).windowHandle(), button, {}, place(element, point));
  }
  void move(const Window& window, QPoint pixel) { QTest::mouseMove(view(window).windowHandle(), pixel); }
  void release(const Window& window, QPoint pixel, Qt::MouseButton button = Qt::LeftButton) {
    QTest::mouseRelease(view(window).windowHandle(), button, {}, pixel);
  }
  void click(const Element& element, Point point = {75, 75}) {
    const QPoint pixel = place(element, point);
    press(element, point);
    release(element.window(), pixel);
  }
  void key(const Window& window, Qt::Key code, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(view(window).windowHandle(), code, modifiers);
  }
  void type(const Window& window, const char* letters) {
    for (; *letters != '\0'; ++letters) QTest::keyClick(view(window).windowHandle(), *letters);
  }

  QImage picture_of(const Window& window) const { return view(window).grab().toImage(); }

 private:
  QTemporaryDir folder_;

 protected:
  PlainHost host;
  std::unique_ptr<QtPlatform> machine;
};

} // namespace cserko::test
