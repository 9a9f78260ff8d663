#include "core/frame.h"

#include "core/frm_referencia.h"
#include "core/numbers.h"
#include "platform/button_face.h"

#include <algorithm>
#include <utility>

namespace cserko {

namespace {

constexpr TextView text_font = u"Times New Roman";
constexpr double margin = 120;
constexpr double smallest_font = 6;
constexpr double largest_font = 2000;
constexpr double text_share = 0.9; // of a box, for the text in it

bool has_place(const Element& element) {
  return element.kind() != ElementKind::Timer && element.kind() != ElementKind::MenuItem;
}

// The largest right and bottom edge of all controls, each in the coordinates of its own container: a control inside a
// frame counts by its place in the frame, which is intended.
Size largest_edges(const Window& window) {
  Size edges;
  for (const Element* element : window.elements()) {
    if (!has_place(*element)) continue;
    edges.width = std::max(edges.width, element->Left + element->Width);
    edges.height = std::max(edges.height, element->Top + element->Height);
  }
  return edges;
}

void scale(Element& element, double k) {
  element.Top *= k;
  element.Left *= k;
  element.Height *= k;
  element.Width *= k;
}

const Color& container_color(const Element& element) {
  return element.container() != nullptr ? element.container()->BackColor : element.window().BackColor;
}

void give_look(Element& element, const Window& reference, bool color_swatches) {
  switch (element.kind()) {
  case ElementKind::Frame:
    element.BackColor = element.window().BackColor;
    break;
  case ElementKind::CheckBox:
  case ElementKind::OptionButton:
    element.BackColor = container_color(element);
    break;
  case ElementKind::Label:
    if (color_swatches) break;
    if (element.BackColor != white) element.Opaque = false;
    element.Font.name = reference.Font.name;
    break;
  case ElementKind::Button:
    element.Font.name = reference.Font.name;
    break;
  default:
    break;
  }
}

// The text with line breaks instead of blanks where a line would be wider than the limit; a longer word stays whole.
Text broken_into_lines(const Platform& platform, const Font& font, TextView text, double width) {
  Text lines;
  std::size_t line_start = 0;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find(u' '), text.size());
    const TextView word = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    const Text longer = lines.substr(line_start) + u" " + Text(word);
    if (lines.empty()) {
      lines = word;
    } else if (platform.measure(font, longer).width <= width) {
      lines += u" " + Text(word);
    } else {
      line_start = lines.size() + 1;
      lines += u"\r" + Text(word);
    }
  }
  return lines;
}

void fit_picture_box(PictureBox& box, Text& text) {
  box.canvas().clear();
  if (text.empty()) text = u"Kéne írni ide valamit!";
  box.Font.name = text_font;
  box.Font.size = 8;
  box.Font.size = first_overfilling_size(box.window().platform(), box.Font, text,
                                         {text_share * box.Width, text_share * box.Height});
  print_centered(box, text);
  box.Tag = text;
}

void fit_caption(Element& control, Text& text) {
  if (text.empty()) text = control.Caption;
  control.Font.name = text_font;
  Font font = control.Font;
  font.size = 6;
  const bool button = control.kind() == ElementKind::Button;
  const double width = button ? face_of(static_cast<const Button&>(control)).caption.width : control.Width;
  control.Font.size = first_overfilling_size(control.window().platform(), font, without_mnemonic(text),
                                             {text_share * width, text_share * control.Height});
  if (control.kind() == ElementKind::Label) {
    static_cast<Label&>(control).set_caption(text);
  } else {
    control.Caption = text;
  }
}

// What is left of a box inside its border, which is painted over whatever is drawn in the box.
Size inner_size(const PictureBox& box) {
  const double borders = box.Border ? 2 * twips_per_pixel : 0;
  return {box.Width - borders, box.Height - borders};
}

// The name in white all around its place, so that it can be read on any picture.
void print_halo(PictureBox& box, Point place, TextView text) {
  const double radius = std::floor(inner_size(box).width / 75);
  const double step = 3.1415 / (box.Height / 300);
  double angle = 0;
  while (angle <= 6.283) {
    box.canvas().print({place.x + radius * std::sin(angle), place.y + radius * std::cos(angle)}, text, box.Font, white);
    angle += step;
  }
}

// A white plate under the name. The outline is 15 twips wider than the plate on both sides, which is intended.
void draw_plate(PictureBox& box, Point place, Size extent) {
  box.canvas().filled_box({place.x, place.y, extent.width, extent.height}, white);
  box.canvas().box({place.x - 15, place.y, extent.width + 30, extent.height}, black);
}

void print_name(PictureBox& box, TextView name, bool outlined) {
  const Platform& platform = box.window().platform();
  box.Font.name = text_font;
  box.Font.size = 8;
  const Size inner = inner_size(box);
  box.Font.size = first_overfilling_size(platform, box.Font, name, {inner.width, inner.height / 4}) - 1;
  const Size extent = platform.measure(box.Font, name);
  // Drawing begins outside the border, so the name ends a pixel above the lower one: the pixel that rounding may cost,
  // or the tails of g, j, p and y are lost.
  const Point place{static_cast<double>(rounded(box.Width / 2 - extent.width / 2)),
                    static_cast<double>(rounded(inner.height - extent.height))};
  if (outlined) {
    print_halo(box, place, name);
  } else {
    draw_plate(box, place, extent);
  }
  box.ForeColor = black;
  box.canvas().print(place, name, box.Font, black);
}

void draw_placeholder(PictureBox& box, TextView name) {
  constexpr Color pale{240, 228, 205};
  constexpr Color edge{170, 145, 115};
  const Rect inside{box.Width * 0.1, box.Height * 0.1, box.Width * 0.8, box.Height * 0.8};
  box.canvas().filled_box(inside, pale);
  box.canvas().box(inside, edge);
  if (name.empty()) return;
  const Platform& platform = box.window().platform();
  Font font = box.Font;
  font.name = text_font;
  font.size = 6;
  font.size =
      std::max(1.0, first_overfilling_size(platform, font, name, {inside.width * 0.9, inside.height * 0.3}) - 1);
  const Size extent = platform.measure(font, name);
  box.canvas().print({box.Width / 2 - extent.width / 2, box.Height / 2 - extent.height / 2}, name, font, black);
}

void show_picture(PictureBox& box, PicturePtr picture, TextView name) {
  clear_picture(box);
  box.Picture = std::move(picture);
  if (!box.Picture) draw_placeholder(box, name);
}

} // namespace

void ablak_középre(Session& session, Window& window) {
  const auto& reference = session.window<frm_referencia>();
  const Size screen = window.platform().screen_size();
  window.Top = screen.height / 2 - window.Height / 2;
  window.Left = screen.width / 2 - window.Width / 2;
  window.Picture = reference.Picture;
  window.BackColor = reference.BackColor;
  // The labels of the drawing window are its colour swatches and keep their look.
  const bool color_swatches = window.Name == u"frm_rajz";
  for (Element* element : window.elements()) give_look(*element, reference, color_swatches);
}

void ablak_méretezés(Window& window, double factor) {
  const Size chrome = window.platform().chrome(window);
  const Size screen = window.platform().screen_size();
  Size edges = largest_edges(window);
  window.Height = margin * factor + edges.height + chrome.height;
  window.Width = margin * factor + edges.width + chrome.width;

  double k = (screen.height - chrome.height) * factor / window.inner_height();
  if (window.Width * k > screen.width * factor) k = (screen.width - chrome.width) * factor / window.inner_width();

  for (Element* element : window.elements()) {
    if (has_place(*element)) scale(*element, k);
  }
  edges = largest_edges(window);
  window.set_inner_size({edges.width + margin, edges.height + margin});
}

double first_overfilling_size(const Platform& platform, Font font, TextView text, Size limits) {
  while (font.size < largest_font) {
    const Size extent = platform.measure(font, text);
    if (extent.width > limits.width || extent.height > limits.height) break;
    font.size += 1;
  }
  return font.size;
}

void szöveg_illesztés(Element& control, Text& text) {
  if (control.kind() == ElementKind::PictureBox) {
    fit_picture_box(static_cast<PictureBox&>(control), text);
  } else {
    fit_caption(control, text);
  }
}

void szöveg_illesztés(Element& control, Text&& text) { szöveg_illesztés(control, text); }

void gombok_illesztése(Window& window) {
  for (Element* element : window.elements()) {
    if (element->kind() != ElementKind::Button) continue;
    szöveg_illesztés(*element);
    element->Font.size -= 3;
  }
}

void clear_picture(PictureBox& box) {
  box.Picture = nullptr;
  if (box.drawn_canvas() != nullptr) box.canvas().clear();
}

void fit_wrapped(Label& label, TextView text) {
  const Platform& platform = label.window().platform();
  label.set_caption(text);
  label.Font.name = text_font;
  label.Font.size = smallest_font;
  const auto fits = [&](double size) {
    Font font = label.Font;
    font.size = size;
    const Size extent = platform.measure_wrapped(font, text, label.Width);
    return extent.width <= label.Width && extent.height <= label.Height;
  };
  while (label.Font.size < largest_font && fits(label.Font.size + 1)) label.Font.size += 1;
}

void fit_printed(PictureBox& box, const Text& text, double smallest_line) {
  szöveg_illesztés(box, Text(text));
  if (box.Font.size >= smallest_line) return;
  const double size = largest_broken_size(box, text);
  if (size <= box.Font.size) return;
  box.canvas().clear();
  box.Font.size = size;
  print_broken(box, text);
}

void print_centered(PictureBox& box, TextView text) {
  const Size extent = box.window().platform().measure(box.Font, text);
  box.canvas().print({box.Width / 2 - extent.width / 2, box.Height / 2 - extent.height / 2}, text, box.Font,
                     box.ForeColor);
}

void print_broken(PictureBox& box, TextView text) {
  print_centered(box, broken_into_lines(box.window().platform(), box.Font, text, text_share * box.Width));
}

double largest_broken_size(const PictureBox& box, TextView text) {
  const Platform& platform = box.window().platform();
  const Size limits{text_share * box.Width, text_share * box.Height};
  Font font = box.Font;
  font.size = smallest_font;
  while (font.size < largest_font) {
    const Size extent = platform.measure(font, broken_into_lines(platform, font, text, limits.width));
    if (extent.width > limits.width || extent.height > limits.height) break;
    font.size += 1;
  }
  return font.size > smallest_font ? font.size - 1 : 0;
}

void show_record_picture(Session& session, PictureBox& box, int index) {
  const KépAdat& record = session.képek[index];
  show_picture_file(box, record.wmf, record.név);
}

void show_picture_file(PictureBox& box, const Text& path, TextView name) {
  show_picture(box, box.window().platform().load_picture(path), name);
}

void show_picture_of(PictureBox& box, const PictureBox& shown, TextView name) {
  show_picture(box, shown.Picture, name);
}

void kép_rajzolás(Session& session, PictureBox& box, int index, const Caption& caption) {
  clear_picture(box);
  if (index == -1) return;
  const KépAdat& record = session.képek[index];
  show_record_picture(session, box, index);
  print_name(box, caption.angol ? record.angol : caption.szótagolt ? record.szótagolt : record.név, caption.körvonalas);
  box.Tag = to_text(index);
}

void súgó_megnyitás(Session& session, TextView page) {
  const Text& folder = session.alapkönyvtár;
  session.platform().start_process(folder + u"tintabrowser.exe " + folder + u"cserko\\help\\" + Text(page),
                                   ProcessWindow::Maximized);
}

void resize_to_text(Label& label) {
  label.Height = label.window().platform().measure_wrapped(label.Font, label.Caption, label.Width).height;
}

} // namespace cserko
