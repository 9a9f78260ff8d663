#include "platform/qt/command_line.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QTranslator>
#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace cserko {
namespace {

// The toolkit's own sentences, which speak English where its translations are not installed.
struct Sentence {
  std::string_view english;
  const char* hungarian;
};
constexpr std::array sentences{Sentence{"Usage: %1", "Használat: %1"},
                               Sentence{"[options]", "[kapcsolók]"},
                               Sentence{"Options:", "Kapcsolók:"},
                               Sentence{"Arguments:", "Megadható még:"},
                               Sentence{"Unknown option '%1'.", "Ismeretlen kapcsoló: %1."},
                               Sentence{"Unknown options: %1.", "Ismeretlen kapcsolók: %1."},
                               Sentence{"Missing value after '%1'.", "Hiányzik az érték: %1."},
                               Sentence{"Unexpected value after '%1'.", "Fölösleges érték: %1."}};

class HungarianParser : public QTranslator {
 public:
  using QTranslator::QTranslator;
  bool isEmpty() const override { return false; }
  QString translate(const char* context, const char* text, const char*, int) const override {
    if (std::string_view(context) != "QCommandLineParser") return {};
    const auto* found = std::find_if(sentences.begin(), sentences.end(),
                                     [text](const Sentence& sentence) { return sentence.english == text; });
    return found == sentences.end() ? QString() : QString::fromUtf8(found->hungarian);
  }
};

void say(FILE* stream, const QString& text) { std::fputs(text.toUtf8().constData(), stream); }

} // namespace

QString program_name() { return QFileInfo(QCoreApplication::arguments().constFirst()).completeBaseName(); }

bool asks_about_program(int argc, char** argv) {
  return std::any_of(argv + 1, argv + argc, [](std::string_view word) {
    return word == "-h" || word == "--help" || word == "-v" || word == "--version";
  });
}

void read_command_line(QCommandLineParser& parser, const QString& notes) {
  QCoreApplication::setApplicationName(program_name());
  QCoreApplication::setApplicationVersion(QStringLiteral(CSERKO_VERSION));
  QCoreApplication::installTranslator(new HungarianParser(QCoreApplication::instance()));
  const QCommandLineOption help({"h", "help"}, QStringLiteral("Ezt a leírást írja ki."));
  const QCommandLineOption version({"v", "version"}, QStringLiteral("A program verzióját írja ki."));
  parser.addOptions({help, version});
  const bool understood = parser.parse(QCoreApplication::arguments());
  if (understood && parser.isSet(version)) parser.showVersion();
  if (understood && parser.isSet(help)) {
    say(stdout, parser.helpText() + (notes.isEmpty() ? QString() : '\n' + notes));
    std::exit(0);
  }
  if (understood) return;
  say(stderr, QStringLiteral("%1 A használat: %2 --help\n").arg(parser.errorText(), program_name()));
  std::exit(wrong_use);
}

} // namespace cserko
