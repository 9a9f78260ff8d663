// What has to happen at the end of a block, whether it is left by its end, a return or an error.
#pragma once

#include <utility>

namespace cserko {

/// Runs a deed, which must not throw, when it goes out of scope.
template<class Deed> class Finally {
 public:
  explicit Finally(Deed deed) : deed_(std::move(deed)) {}
  ~Finally() { deed_(); }
  Finally(const Finally&) = delete;
  Finally& operator=(const Finally&) = delete;

 private:
  Deed deed_;
};

} // namespace cserko
