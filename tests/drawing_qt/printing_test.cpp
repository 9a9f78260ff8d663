#include "platform/qt/qt_images.h"
#include "platform/qt/qt_text.h"
#include "tests/drawing_qt/pdf_images.h"
#include "tests/qt/fixture.h"

#include <QFile>

namespace cserko::test {
namespace {

class PrintingOnTheMachine : public QtMachine {
 protected:
  static PixelImage drawing() {
    PixelImage image{120, 80, {}};
    for (int y = 0; y < 80; ++y) {
      for (int x = 0; x < 120; ++x)
        image.pixels.push_back(x > 20 && x < 60 && y > 30 ? Color{214, 40, 40} : x == y ? black : white);
    }
    return image;
  }
};

TEST_F(PrintingOnTheMachine, ADrawingIsFoundInThePdfPointForPoint) {
  const QTemporaryDir folder;
  const QString path = folder.filePath("rajz.pdf");
  const auto job = machine->printing().start_pdf(from_qt(path));
  const Size page = job->page();
  EXPECT_GT(page.width, page.height) << "it lies as the drawing does";
  EXPECT_GT(page.width, 1000);
  job->image(drawing(), {0, 0, page.width, page.width * 80 / 120});
  job->finish();
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QList<QImage> images = pdf_images(file.readAll());
  ASSERT_EQ(images.size(), 1);
  EXPECT_EQ(from_qt(images[0]), drawing());
}

TEST_F(PrintingOnTheMachine, AFileThatCannotBeWrittenIsAnError) {
  EXPECT_THROW((void)machine->printing().start_pdf(u"/nowhere/at/all/rajz.pdf"), PrintError);
}

} // namespace
} // namespace cserko::test
