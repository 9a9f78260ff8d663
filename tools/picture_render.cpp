// Draws one picture file onto white with the program's own code, to see what the program would show.
#include "platform/qt/picture_loader.h"

#include <QGuiApplication>
#include <QPainter>
#include <QStringList>
#include <cstdio>

namespace {

constexpr int kMostSide = 8192;
constexpr int kAnyHeight = 1'000'000; // above every height that can be drawn
constexpr int kDrawn = 0, kNotDrawn = 1, kWrongArguments = 2;

constexpr const char* kUsage = "usage: picture-render IN OUT.png WIDTH [HEIGHT]\n"
                               "Draws a picture file (metafile, bitmap, PNG, JPEG) onto white.\n"
                               "With WIDTH alone the height follows from the picture's own proportions.\n"
                               "With HEIGHT too the picture fills the whole of WIDTH x HEIGHT, proportions given up.\n"
                               "Sides are 1 to 8192 pixels.\n"
                               "exit status: 0 drawn, 1 nothing could be drawn, 2 wrong arguments\n";

void print_error(const QString& text) { std::fprintf(stderr, "picture-render: %s\n", text.toUtf8().constData()); }

/// 0 for anything but a whole number from 1 to the greatest side.
int side(const QString& argument) {
  bool is_number = false;
  const int value = argument.toInt(&is_number);
  return is_number && value >= 1 && value <= kMostSide ? value : 0;
}

QImage draw(const cserko::LoadedPicture& picture, int width, int height) {
  const QImage image = height > 0 ? picture.stretched({width, height}) : picture.image({width, kAnyHeight});
  if (image.isNull()) return {};
  QImage paper(image.size(), QImage::Format_RGB32);
  if (paper.isNull()) return {};
  paper.fill(Qt::white);
  QPainter(&paper).drawImage(0, 0, image);
  return paper;
}

} // namespace

int main(int argc, char* argv[]) {
  // Whoever runs this reads one line about the picture, not the toolkit's remarks on the surroundings.
  qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
  // No window is ever opened, so it must also run where there is no display.
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication app(argc, argv);
  const QStringList arguments = QGuiApplication::arguments();
  const bool counted = arguments.size() == 4 || arguments.size() == 5;
  const int width = counted ? side(arguments[3]) : 0;
  const int height = arguments.size() == 5 ? side(arguments[4]) : 0;
  if (width == 0 || (arguments.size() == 5 && height == 0)) {
    std::fputs(kUsage, stderr);
    return kWrongArguments;
  }
  const QString& in = arguments[1];
  const QString& out = arguments[2];
  const auto picture = cserko::load_picture(in);
  if (!picture) {
    print_error(cserko::picture_file(in).isEmpty() ? in + ": no such picture file" : in + ": nothing could be drawn");
    return kNotDrawn;
  }
  const QImage image = draw(*picture, width, height);
  if (image.isNull()) {
    print_error(in + ": too large to be drawn at this size");
    return kNotDrawn;
  }
  if (!image.save(out, "PNG")) {
    print_error(out + ": cannot be written");
    return kNotDrawn;
  }
  return kDrawn;
}
