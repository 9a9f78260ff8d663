// A headless machine with one window on it, and a host that keeps what it is told.
#pragma once

#include "platform/element_array.h"
#include "platform/headless/hand.h"
#include "platform/headless/headless_platform.h"

#include <gtest/gtest.h>
#include <ostream>

namespace cserko {

inline void PrintTo(const Color& color, std::ostream* stream) {
  *stream << int{color.red} << "," << int{color.green} << "," << int{color.blue};
}

inline void PrintTo(const Size& size, std::ostream* stream) { *stream << size.width << " x " << size.height; }

inline void PrintTo(const Rect& rect, std::ostream* stream) {
  *stream << rect.left << ", " << rect.top << ", " << rect.width << " x " << rect.height;
}

/// Ends an event at its boundary and reports what it threw, as the suite does.
class TestHost : public Host {
 public:
  explicit TestHost(Platform& machine) : machine_(machine) { machine_.host = this; }
  ~TestHost() override { machine_.host = nullptr; }
  TestHost(const TestHost&) = delete;
  TestHost& operator=(const TestHost&) = delete;

  void run_event(Window&, const std::function<void()>& handler) override {
    ++events;
    try {
      handler();
    } catch (const std::exception& error) {
      machine_.report_error(from_utf8(error.what()));
    }
  }

  void close_request(Window& window) override { close_requests.push_back(window.Name); }

  int events = 0;
  std::vector<Text> close_requests;

 private:
  Platform& machine_;
};

/// What happened, in order.
using Log = std::vector<std::string>;

/// A window that notes its own events and is known to the machine as long as it lives.
class TestWindow : public Window {
 public:
  TestWindow(Platform& platform, Log& log, TextView name = u"window")
      : Window(platform, name, {6000, 4500}, u"Test"), log_(log) {
    set_inner_size(design_size());
    platform.attach(*this);
  }
  ~TestWindow() override { platform().detach(*this); }

  void Activate() override {
    note("Activate");
    if (on_activate) on_activate();
  }
  void KeyDown(KeyEvent& event) override {
    note("KeyDown " + std::to_string(event.code));
    if (on_key) on_key(event);
  }
  void KeyUp(KeyEvent& event) override { note("KeyUp " + std::to_string(event.code)); }
  void MouseDown(const MouseEvent&) override { note("MouseDown"); }
  void MouseMove(const MouseEvent&) override { note("MouseMove"); }
  void MouseUp(const MouseEvent&) override { note("MouseUp"); }

  std::function<void()> on_activate;
  std::function<void(KeyEvent&)> on_key;

 private:
  void note(const std::string& what) { log_.push_back(to_utf8(Name) + " " + what); }

  Log& log_;
};

class PlatformTest : public testing::Test {
 protected:
  /// Shows the window and forgets the events of that.
  void show() {
    platform.show(window);
    log.clear();
    host.events = 0;
  }

  /// A handler that notes that it ran.
  std::function<void()> noting(const std::string& what) {
    return [this, what] { log.push_back(what); };
  }

  HeadlessPlatform platform;
  TestHost host{platform};
  Log log;
  TestWindow window{platform, log};
};

} // namespace cserko
