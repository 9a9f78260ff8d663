// What the stops of the tour read, read once for all of them.
#pragma once

#include "cmake/precompiled/logic.h"
#include "tests/tour/visit.h"

#include <QApplication>
#include <QImage>
