// Any bytes as a metafile: must neither fail nor hang, and what comes out must keep its promises.
#include "platform/qt/metafile/metafile.h"

#include <QGuiApplication>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

constexpr QSize kTarget(48, 40);

void require(bool condition) {
  if (!condition) std::abort();
}

} // namespace

/// The system's font library keeps its lists until the process ends.
extern "C" const char* __lsan_default_suppressions() { return "leak:libfontconfig\n"; }

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
  // Text needs fonts. The application lives as long as the process.
  qputenv("QT_QPA_PLATFORM", "offscreen");
  static const QGuiApplication app(*argc, *argv);
  qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
  const auto metafile = cserko::Metafile::parse(bytes);
  if (!metafile) return 0;
  const QSizeF natural = metafile->natural_size();
  require(natural.width() >= 1 && natural.height() >= 1);
  const QImage image = metafile->render(kTarget, cserko::PictureFit::Stretch);
  require(image.size() == kTarget);
  if (metafile->needs_paper()) require(qAlpha(image.pixel(0, 0)) == 255);
  return 0;
}
