// Where a path of the suite may lead: the two folders that it knows, and nowhere else.
#pragma once

#include "platform/text.h"

#include <cstdint>
#include <optional>

namespace cserko {

/// The application folder as the suite writes it. Behind it stands the data pack.
inline constexpr TextView application_root = u"c:\\cserko";
/// The folder of everything that belongs to the user, as the suite writes it.
inline constexpr TextView user_root = u"c:\\pomzu";

/// A path below one of the two folders.
struct SuitePath {
  enum class Root : std::uint8_t { Application, User };

  Root root = Root::Application;
  Text below; ///< With single backslashes, empty for the folder itself; leads nowhere but down.

  /// The whole path in this one form.
  Text text() const;
};

/// Resolves a path with either kind of separator, doubled ones, `.` and `..`. None where it leads out of both folders:
/// a name from a file, a list or a record reaches nothing else on the disk.
std::optional<SuitePath> suite_path(TextView path);

} // namespace cserko
