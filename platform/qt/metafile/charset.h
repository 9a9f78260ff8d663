#pragma once

#include <QByteArrayView>
#include <QString>

namespace cserko {

/// Text of a metafile in the code page that goes with the character set number of its font. The default set is taken
/// for Central European, since that is where the suite's pictures come from. Sets of more than one byte a letter and
/// unknown ones are read as Western.
QString decode_charset(QByteArrayView bytes, int charset);

} // namespace cserko
