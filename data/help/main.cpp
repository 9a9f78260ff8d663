// Builds the help pages of the data pack: help-builder <pack> <source>...
#include "data/help/page_archive.h"
#include "data/wordlist/pack_file.h"

#include <QGuiApplication>
#include <cstdio>

namespace {

using namespace cserko;

void build(const QString& pack, const QStringList& sources) {
  QList<PageSource> pages;
  for (const QString& source : sources) pages += read_page(source);
  const QHash<QString, QString> names = page_names(pages);
  const std::filesystem::path folder = pack.toStdU16String();
  std::set<std::string> written;
  for (const PageSource& page : pages) {
    const HtmlPage html = page_html(page, names);
    for (const QString& picture : html.missing)
      std::fprintf(stderr, "%s: no picture %s yet (make help-pictures)\n", qUtf8Printable(page.file),
                   qUtf8Printable(picture));
    const QByteArray archive = page_archive(page, html);
    const std::string name = page.name.toStdString();
    write_pack_file(folder, "cserko/help/" + name, archive.toStdString());
    written.insert(name);
  }
  remove_other_files(folder, "cserko/help", ".mht", written);
}

} // namespace

int main(int argc, char** argv) {
  // Markdown is read into a text document, which wants fonts, but no screen.
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  const QStringList arguments = QCoreApplication::arguments();
  if (arguments.size() < 3) {
    std::fputs("Usage: help-builder PACK SOURCE...\n", stderr);
    return 2;
  }
  try {
    build(arguments[1], arguments.mid(2));
    return 0;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "help-builder: %s\n", error.what());
    return 1;
  }
}
