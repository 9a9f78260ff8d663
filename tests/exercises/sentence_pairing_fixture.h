// Sentence pairing with a set that the test has drawn, and a hand that draws lines.
#pragma once

#include "exercises/sentences/frm_párosító.h"
#include "tests/exercises/exercise_fixture.h"

namespace cserko {

class PairingFixture : public ExerciseTest {
 protected:
  static constexpr int rows = 5;

  /// Eight records with definitions; the last is never drawn.
  PairingFixture() {
    for (int i = 0; i < 8; ++i) put({.név = u"kép " + to_text(i), .meghatározás = u"meghatározás " + to_text(i)});
  }
  void clear_records() {
    for (const Text& path : machine.files().all()) {
      if (path.find(u"\\kepek\\") != Text::npos) machine.files().take(path);
    }
    start_numbering();
  }
  /// What chance gives for a set of these records from the first definition down; the pictures stand the other way
  /// round.
  void script_set(const std::vector<int>& records) {
    int row = 0;
    for (const int index : records) {
      machine.script_random({record(index), drawing(row, rows), drawing(rows - 1 - row, rows)});
      ++row;
    }
  }
  frm_párosító& deal() {
    start();
    put_answer_sounds();
    script_set({0, 1, 2, 3, 4});
    return open<frm_párosító>();
  }
  frm_párosító& deal_checking_at_once() {
    put_settings(u"paros.ini", {u"True"});
    return deal();
  }
  /// The row of the partner.
  static int partner(int row) { return rows - 1 - row; }

  static Point middle(const Element& element) {
    return {element.Left + element.Width / 2, element.Top + element.Height / 2};
  }
  /// Draws a line from the middle of an element through points of the window.
  static void draw_through(Element& from, const std::vector<Point>& points) {
    std::vector<Point> path{{from.Width / 2, from.Height / 2}};
    for (const Point& point : points) path.push_back({point.x - from.Left, point.y - from.Top});
    hand::draw(from, path);
  }
  static void draw_line(Element& from, const Element& to) { draw_through(from, {middle(to)}); }
  void join(frm_párosító& window, int picture, int definition) {
    draw_line(window.pic_feladvány[picture], window.lbl_feladvány[definition]);
  }
  /// A place of the free strip between the columns, at the height of a row.
  static Point in_strip(const frm_párosító& window, int row) {
    const PictureBox& picture = window.pic_feladvány[row];
    return {(picture.Left + picture.Width + window.lbl_feladvány[row].Left) / 2, middle(picture).y};
  }

  static const RecordedCanvas& drawing_of(frm_párosító& window) {
    return static_cast<const RecordedCanvas&>(window.canvas());
  }
  static std::vector<Drawing> drawn_as(frm_párosító& window, Drawing::Kind kind) {
    std::vector<Drawing> found;
    for (const Drawing& drawing : drawing_of(window).drawings()) {
      if (drawing.kind == kind) found.push_back(drawing);
    }
    return found;
  }
  static std::size_t lines(frm_párosító& window) { return drawn_as(window, Drawing::Kind::Line).size(); }
  static std::size_t wiped(frm_párosító& window) { return drawn_as(window, Drawing::Kind::EraseLine).size(); }
  /// How many pixels of the free strip have a line on them.
  static int inked(frm_párosító& window) {
    const PixelImage image = drawing_of(window).pixels();
    const int left = static_cast<int>((window.pic_feladvány[0].Left + window.pic_feladvány[0].Width) / twips_per_pixel);
    const int right = static_cast<int>(window.lbl_feladvány[0].Left / twips_per_pixel);
    int found = 0;
    for (int y = 0; y < image.height; ++y) {
      for (int x = left; x < right; ++x) found += image.at(x, y) == white ? 0 : 1;
    }
    return found;
  }
  /// The rows whose picture, or definition, can still begin a line.
  static std::vector<int> live(const ElementArray<PictureBox>& boxes) {
    std::vector<int> found;
    boxes.each([&](const PictureBox& box) {
      if (box.Enabled) found.push_back(box.Index);
    });
    return found;
  }
  static std::vector<int> solved(const frm_párosító& window) {
    std::vector<int> found;
    for (int i = 0; i < rows; ++i) {
      if (window.párosítva(i)) found.push_back(i);
    }
    return found;
  }
  static std::vector<std::string> tags(const ElementArray<PictureBox>& boxes) {
    std::vector<std::string> all;
    boxes.each([&](const PictureBox& box) { all.push_back(utf8(box.Tag)); });
    return all;
  }
  static std::string text_of(PictureBox& box) {
    const auto texts = drawn(box).texts();
    return texts.size() == 1 ? utf8(texts[0]) : "(" + std::to_string(texts.size()) + " texts)";
  }

  static inline const std::vector<int> all_rows{0, 1, 2, 3, 4};
};

} // namespace cserko
