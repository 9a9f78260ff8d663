#include "platform/headless/scripted_dialogs.h"

#include "platform/input.h"

namespace cserko {

namespace {

template<class T> std::optional<T> next(std::deque<std::optional<T>>& answers) {
  if (answers.empty()) return std::nullopt;
  std::optional<T> answer = answers.front();
  answers.pop_front();
  return answer;
}

class RecordedJob : public PrintJob {
 public:
  RecordedJob(RecordedPrinting& printing, Text pdf) : printing_(printing) {
    printing.pages.push_back({{}, {}, false, std::move(pdf)});
  }

  Size page() const override { return printing_.paper; }
  void image(const PixelImage& image, const Rect& place) override {
    printing_.pages.back().image = image;
    printing_.pages.back().place = place;
  }
  void finish() override {
    if (printing_.fails) throw PrintError("A nyomtató nem válaszol.");
    printing_.pages.back().finished = true;
  }

 private:
  RecordedPrinting& printing_;
};

} // namespace

void ScriptedDialogs::stand(Window& owner) {
  ++standing_;
  struct Done {
    int& standing;
    ~Done() { --standing; }
  };
  {
    const Done done{standing_};
    if (while_standing) while_standing();
  }
  if (owner.platform().is_active(owner)) input::activate(owner);
}

std::optional<Text> ScriptedDialogs::open_file(Window& owner, const FileQuestion& question) {
  open_questions.push_back(question);
  stand(owner);
  return next(files_to_open);
}

std::optional<Text> ScriptedDialogs::save_file(Window& owner, const FileQuestion& question) {
  save_questions.push_back(question);
  stand(owner);
  return next(files_to_save);
}

std::optional<Color> ScriptedDialogs::choose_color(Window& owner, Color present) {
  color_questions.push_back(present);
  stand(owner);
  return next(colors);
}

std::unique_ptr<PrintJob> RecordedPrinting::start(Window& owner) {
  dialogs_.stand(owner);
  return cancelled ? nullptr : std::make_unique<RecordedJob>(*this, Text());
}

std::unique_ptr<PrintJob> RecordedPrinting::start_pdf(const Text& chosen) {
  return std::make_unique<RecordedJob>(*this, chosen);
}

} // namespace cserko
