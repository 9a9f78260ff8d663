#include "platform/qt/files.h"

#include "platform/qt/qt_text.h"
#include "platform/suite_path.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QSaveFile>
#include <QSet>
#include <QStandardPaths>

namespace cserko {

namespace {

QString fold(const QString& name) { return name.normalized(QString::NormalizationForm_C).toCaseFolded(); }

QString folder_of(const QString& path) { return path.left(path.lastIndexOf('/')); }

// Whether what the user adds and changes may go into the pack itself. On Windows the installer takes away what it has
// installed, and nothing tells beforehand whether a folder can be written: there the user's own folder is the place.
bool takes_the_users_files([[maybe_unused]] const QString& pack) {
#ifdef Q_OS_WIN
  return false;
#else
  return QFileInfo(pack).isWritable();
#endif
}

[[noreturn]] void fail(const QString& what, const Text& path) {
  throw FileError((what + ": " + to_qt(path)).toStdString());
}

} // namespace

QtFiles::QtFiles(QString pack, QString user)
    : pack_(std::move(pack)), user_(std::move(user)), application_roots_{pack_} {
  if (!takes_the_users_files(pack_)) application_roots_.prepend(user_ + "/alkalmazas");
}

QString QtFiles::find_pack() {
  const QString beside = QCoreApplication::applicationDirPath();
  const QString chosen = qEnvironmentVariable("CSERKO_PACK_DIR");
  if (!chosen.isEmpty() && QFileInfo(chosen).isDir()) return QDir::cleanPath(chosen);
  // A pack without records is one too, but no reason to overlook a whole one.
  for (const char* sign : {"/kepek", "/cserko"}) {
    for (const char* place : {"/pack", "/../pack", "/../share/cserko/pack"}) {
      const QString candidate = beside + place;
      if (QFileInfo(candidate + sign).isDir()) return QDir::cleanPath(candidate);
    }
  }
  return {};
}

QString QtFiles::find_user_folder() {
  const QString own = qEnvironmentVariable("CSERKO_USER_DIR");
  if (!own.isEmpty()) return QDir::cleanPath(own);
  return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + "/cserko";
}

QtFiles::Place QtFiles::place_of(const Text& path) const {
  const auto led_to = suite_path(from_qt(to_qt(path).normalized(QString::NormalizationForm_C)));
  if (!led_to) return {};
  const bool application = led_to->root == SuitePath::Root::Application;
  return {application ? application_roots_ : QStringList(user_), to_qt(led_to->below).replace('\\', '/')};
}

const QtFiles::Listing& QtFiles::listing(const QString& folder) const {
  const QDateTime changed = QFileInfo(folder).lastModified();
  Listing& known = listings_[folder];
  if (known.changed == changed && changed.isValid()) return known;
  known.changed = changed;
  known.names.clear();
  QDirIterator entries(folder, QDir::AllEntries | QDir::NoDotAndDotDot);
  while (entries.hasNext()) {
    entries.next();
    known.names.insert(fold(entries.fileName()), entries.fileName());
  }
  return known;
}

// The path as it is on the disk, its names found without regard to case; empty if it is not there.
QString QtFiles::find_below(const QString& root, const QString& below) const {
  if (QFileInfo::exists(root + '/' + below)) return root + '/' + below;
  QString path = root;
  for (const QString& name : below.split('/', Qt::SkipEmptyParts)) {
    const QString exact = path + '/' + name;
    if (QFileInfo::exists(exact)) {
      path = exact;
      continue;
    }
    const QString found = listing(path).names.value(fold(name));
    if (found.isEmpty()) return {};
    path += '/' + found;
  }
  return path;
}

QString QtFiles::find(const Text& path) const {
  const Place place = place_of(path);
  for (const QString& root : place.roots) {
    if (QString found = find_below(root, place.below); !found.isEmpty()) return found;
  }
  return {};
}

QString QtFiles::to_write(const Text& path) const {
  const Place place = place_of(path);
  if (place.roots.isEmpty()) fail("Ide nem lehet írni", path);
  const QString& root = place.roots.front();
  const qsizetype cut = place.below.lastIndexOf('/');
  QString folder = cut < 0 ? root : find_below(root, place.below.left(cut));
  if (folder.isEmpty()) folder = root + '/' + place.below.left(cut);
  const QString name = place.below.mid(cut + 1);
  const QString present = find_below(folder, name);
  return present.isEmpty() ? folder + '/' + name : present;
}

QString QtFiles::real_path(const Text& path) const {
  QString found = find(path);
  if (!found.isEmpty()) return found;
  const Place place = place_of(path);
  return place.roots.isEmpty() ? QString() : place.roots.back() + '/' + place.below;
}

QStringList QtFiles::real_paths(const Text& path) const {
  const Place place = place_of(path);
  QStringList paths;
  for (const QString& root : place.roots) {
    const QString found = find_below(root, place.below);
    paths << (found.isEmpty() ? root + '/' + place.below : found);
  }
  return paths;
}

std::vector<Text> QtFiles::list(const Text& pattern) const {
  const Place place = place_of(pattern);
  const qsizetype cut = place.below.lastIndexOf('/');
  const QString name_pattern = place.below.mid(cut + 1);
  std::vector<Text> names;
  QSet<QString> seen;
  for (const QString& root : place.roots) {
    const QString folder = find_below(root, place.below.left(std::max<qsizetype>(cut, 0)));
    if (folder.isEmpty()) continue;
    QDirIterator entries(folder, {name_pattern == "*.*" ? "*" : name_pattern}, QDir::Files);
    while (entries.hasNext()) {
      entries.next();
      const QString name = entries.fileName();
      // What the user has of his own hides the pack's file of the same name.
      if (place.roots.size() > 1) {
        if (seen.contains(fold(name))) continue;
        seen.insert(fold(name));
      }
      names.push_back(from_qt(name));
    }
  }
  return names;
}

bool QtFiles::exists(const Text& path) const { return QFileInfo(find(path)).isFile(); }

std::optional<std::string> QtFiles::read(const Text& path) const {
  const Place place = place_of(path);
  for (const QString& root : place.roots) {
    // The name as it is given nearly always is the name on the disk: no search before the first try.
    QFile file(root + '/' + place.below);
    if (!file.open(QIODevice::ReadOnly)) {
      const QString found = find_below(root, place.below);
      if (found.isEmpty()) continue;
      file.setFileName(found);
      if (!file.open(QIODevice::ReadOnly)) return std::nullopt;
    }
    std::string bytes(static_cast<std::size_t>(file.size()), '\0');
    const qint64 count = file.read(bytes.data(), static_cast<qint64>(bytes.size()));
    if (count < 0) return std::nullopt;
    bytes.resize(static_cast<std::size_t>(count));
    return bytes;
  }
  return std::nullopt;
}

void QtFiles::write(const Text& path, std::string_view bytes) {
  const QString target = to_write(path);
  QDir().mkpath(folder_of(target));
  // A file that may not be written is not replaced behind its owner's back.
  if (QFileInfo::exists(target) && !QFileInfo(target).isWritable()) fail("A fájl nem írható", path);
  QSaveFile file(target);
  if (!file.open(QIODevice::WriteOnly)) fail("A fájl nem írható", path);
  if (file.write(bytes.data(), static_cast<qint64>(bytes.size())) != static_cast<qint64>(bytes.size()) ||
      !file.commit())
    fail("A fájl írása nem sikerült", path);
}

void QtFiles::make_folder(const Text& path) {
  const Place place = place_of(path);
  if (place.roots.isEmpty() || !QDir().mkpath(place.roots.front() + '/' + place.below))
    fail("A mappa nem hozható létre", path);
}

void QtFiles::remove(const Text& path) {
  const QString target = find(path);
  if (target.isEmpty() || !QFile::remove(target)) fail("A fájl nem törölhető", path);
}

} // namespace cserko
