#include "tests/viewer/reader.h"

#include <QTest>
#include <QTextBlock>
#include <QTextCursor>

namespace cserko::test {

namespace {

template<class Visit> void each_fragment(const HelpBrowser& browser, Visit visit) {
  for (QTextBlock block = browser.document()->begin(); block.isValid(); block = block.next()) {
    for (auto at = block.begin(); !at.atEnd(); ++at) visit(at.fragment());
  }
}

} // namespace

QStringList links(HelpBrowser& browser) {
  QStringList found;
  each_fragment(browser, [&](const QTextFragment& text) {
    const QString target = text.charFormat().anchorHref();
    if (!target.isEmpty() && !found.contains(target)) found += target;
  });
  return found;
}

QList<ShownPicture> pictures(HelpBrowser& browser) {
  QList<ShownPicture> found;
  each_fragment(browser, [&](const QTextFragment& text) {
    const QTextImageFormat format = text.charFormat().toImageFormat();
    if (!format.isValid()) return;
    const QVariant image = browser.document()->resource(QTextDocument::ImageResource, QUrl(format.name()));
    found.append({format.name(), QSizeF(format.width(), format.height()).toSize(), image.value<QImage>()});
  });
  return found;
}

bool click_link(HelpBrowser& browser, const QString& target) {
  int position = -1;
  each_fragment(browser, [&](const QTextFragment& text) {
    if (text.charFormat().anchorHref() == target) position = text.position() + text.length() / 2;
  });
  if (position < 0) return false;
  QTextCursor cursor(browser.document());
  cursor.setPosition(position);
  browser.setTextCursor(cursor);
  browser.ensureCursorVisible();
  QTest::mouseClick(browser.viewport(), Qt::LeftButton, {}, browser.cursorRect(cursor).center());
  return true;
}

} // namespace cserko::test
