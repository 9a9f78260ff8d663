#include "tests/tour/window_stops.h"

#include <map>

namespace cserko::tour {

namespace {

// Made on first use, since the windows put their stops on it in no particular order.
std::map<Text, LayOut>& list() {
  static std::map<Text, LayOut> stops;
  return stops;
}

} // namespace

Stops::Stops(TextView window, LayOut lay_out) { list()[Text(window)] = lay_out; }

LayOut stops_in(TextView window) {
  const auto found = list().find(Text(window));
  return found == list().end() ? nullptr : found->second;
}

} // namespace cserko::tour
