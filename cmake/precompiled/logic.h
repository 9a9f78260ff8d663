// What nearly every source of the suite reads, read once for all of them.
#pragma once

#include "platform/element_array.h"
#include "platform/elements.h"
#include "platform/platform.h"
#include "platform/text.h"
#include "platform/window.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <functional>
#include <limits>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>
