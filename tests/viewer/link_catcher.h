// Stands where the desktop opens addresses, and writes them down instead.
#pragma once

#include <QDesktopServices>
#include <QObject>
#include <QStringList>
#include <QUrl>

namespace cserko::test {

class LinkCatcher : public QObject {
  Q_OBJECT

 public:
  LinkCatcher() {
    for (const char* scheme : schemes) QDesktopServices::setUrlHandler(scheme, this, "caught");
  }
  ~LinkCatcher() override {
    for (const char* scheme : schemes) QDesktopServices::unsetUrlHandler(scheme);
  }
  LinkCatcher(const LinkCatcher&) = delete;
  LinkCatcher& operator=(const LinkCatcher&) = delete;

  QStringList urls;

 public slots:
  void caught(const QUrl& url) { urls += url.toString(); }

 private:
  static constexpr const char* schemes[] = {"http", "https", "mailto", "file"};
};

} // namespace cserko::test
