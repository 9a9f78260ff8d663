// The files of the suite on a real disk: one mapping of the system's paths to folders.
#pragma once

#include "platform/platform.h"

#include <QDateTime>
#include <QHash>
#include <QString>
#include <QStringList>

namespace cserko {

/// The application folder as the suite writes it. Behind it stands the installed data pack.
inline constexpr TextView logical_application_folder = u"c:\\cserko\\";

class QtFiles : public Files {
 public:
  /// `pack` is the data pack, `user` the folder for everything the suite writes. Both are native paths.
  QtFiles(QString pack, QString user);

  /// The pack beside the program or under its prefix, or any folder that the environment names; empty if there is none.
  static QString find_pack();
  /// The user's own folder, or where the environment says.
  static QString find_user_folder();

  const QString& pack() const { return pack_; }

  /// The real path behind a path of the suite: of the file that is there, or else of the one that would be written.
  /// Empty for a path that leads out of the pack and the user's folder.
  QString real_path(const Text& path) const;

  /// All real paths that a path of the suite may stand for, whether they exist or not: what is there in an earlier one
  /// hides the later ones, and the first is the one that is written. None for a path that leads out.
  QStringList real_paths(const Text& path) const;

  std::vector<Text> list(const Text& pattern) const override;
  bool exists(const Text& path) const override;
  std::optional<std::string> read(const Text& path) const override;
  void write(const Text& path, std::string_view bytes) override;
  void make_folder(const Text& path) override;
  void remove(const Text& path) override;

 private:
  /// The real roots that a path of the suite can lie under, the first one wins, and the path below them.
  struct Place {
    QStringList roots;
    QString below;
  };
  struct Listing {
    QDateTime changed;
    QHash<QString, QString> names; ///< Folded name to the name on the disk.
  };

  Place place_of(const Text& path) const;
  QString find_below(const QString& root, const QString& below) const;
  QString find(const Text& path) const;
  QString to_write(const Text& path) const;
  const Listing& listing(const QString& folder) const;

  QString pack_;
  QString user_;
  /// The pack, behind a folder of the user's where the pack is read-only, and always on Windows.
  QStringList application_roots_;
  mutable QHash<QString, Listing> listings_;
};

} // namespace cserko
