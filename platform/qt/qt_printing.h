// The printer over Qt.
#pragma once

#include "platform/printing.h"

namespace cserko {

class QtPlatform;

class QtPrinting : public Printing {
 public:
  explicit QtPrinting(QtPlatform& platform) : platform_(platform) {}

  bool available() const override;
  std::unique_ptr<PrintJob> start(Window& owner) override;
  std::unique_ptr<PrintJob> start_pdf(const Text& chosen) override;

 private:
  QtPlatform& platform_;
};

} // namespace cserko
