// What nearly every headless test reads, read once for all of them.
#pragma once

#include "cmake/precompiled/logic.h"
#include "platform/headless/hand.h"
#include "platform/headless/headless_platform.h"

#include <gtest/gtest.h>
#include <iostream>
#include <numeric>
#include <sstream>
