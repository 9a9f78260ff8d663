// Pairs of records that a child could take for each other where an exercise puts them side by side.
#pragma once

#include "data/checker/exceptions.h"
#include "data/pack/record.h"

#include <QImage>
#include <vector>

namespace cserko {

/// Pairs whose definitions share half or more of the content words of the shorter one, and at least three; pairs of
/// which one definition names the other record, where the naming is mutual or the definitions share a content word
/// besides. Each as one line, unless a row of the table excuses it: kind ("definition" or "picture"),
/// names between blanks, of which every two may be alike, and a reason.
QStringList suspicious_definitions(const std::vector<WordRecord>& records, Exceptions& excused);

/// Pairs whose pictures differ by colour or little else. The pictures are those of the records, in their order; nothing
/// is said of one that is null. Excused as above.
QStringList suspicious_pictures(const std::vector<WordRecord>& records, const std::vector<QImage>& pictures,
                                Exceptions& excused);

/// How much two pictures of equal size are one drawing, whatever its colours: 1 for the same lines at the same places,
/// 0 for none in common.
double likeness(const QImage& a, const QImage& b);

} // namespace cserko
