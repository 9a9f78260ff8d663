#include "tests/x11/steps.h"

#include <QApplication>
#include <QDialog>
#include <stdexcept>

namespace cserko {

namespace {

constexpr int pace = 20;         // ms between two looks
constexpr int patience = 120000; // ms for all of it

} // namespace

Steps::Steps(WatchedPlatform& platform)
    : platform_(platform),
      hand_([&platform](const Element& element, Point point) { return platform.spot_of(element, point); }) {
  connect(&timer_, &QTimer::timeout, this, [this] { look(); });
  timer_.start(pace);
  waiting_.start();
}

void Steps::expect(bool holds, const std::string& otherwise) {
  if (!holds) throw std::runtime_error(otherwise);
}

std::string Steps::trouble() const {
  return trouble_.empty() && next_ < steps_.size() ? "the program has ended" + place() : trouble_;
}

std::string Steps::place() const {
  const Window* front = platform_.active_window();
  return ", at: " + present_ + ", before: " + (next_ < steps_.size() ? steps_[next_].what : "the end") + ", with " +
         (front == nullptr ? "no window" : to_utf8(front->Name)) + " at the front";
}

void Steps::look() {
  if (!hand_.idle()) return;
  try {
    expect(waiting_.elapsed() <= patience, "nothing goes on");
    expect(hand_.lost() == 0, "presses of the hand reached no window");
    if (next_ == steps_.size()) {
      stop();
    } else if (steps_[next_].ready()) {
      present_ = steps_[next_].what;
      steps_[next_++].deed();
    }
  } catch (const std::exception& error) {
    trouble_ = error.what() + place();
    stop();
  }
}

void Steps::stop() {
  timer_.stop();
  platform_.end_process();
  // A dialog of the system has a loop of its own.
  if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) dialog->reject();
}

bool Steps::at_front(TextView name) const {
  Window* front = platform_.active_window();
  if (front == nullptr || front->Name != name || !front->Enabled || !platform_.settled(*front)) return false;
  const QWidget* modal = QApplication::activeModalWidget();
  return modal == nullptr || modal == platform_.view_of(*front);
}

void Steps::then(const std::string& what, std::function<bool()> ready, std::function<void()> deed) {
  steps_.push_back({what, std::move(ready), std::move(deed)});
}

void Steps::in(TextView window, const std::string& what, std::function<void()> deed) {
  then(
      what, [this, window] { return at_front(window); }, std::move(deed));
}

Element& Steps::front_element(TextView name) const {
  Window* front = platform_.active_window();
  Element* found = front != nullptr ? front->find(name) : nullptr;
  expect(found != nullptr, "there is no " + to_utf8(name));
  return *found;
}

void Steps::choose(TextView window, TextView menu, TextView entry) {
  in(window, "open " + to_utf8(menu), [this, menu] { hand_.click(front_element(menu)); });
  then(
      "choose " + to_utf8(entry), [] { return QApplication::activePopupWidget() != nullptr; },
      [this, entry] { hand_.click(front_element(entry)); });
}

} // namespace cserko
