#pragma once
#include "core/FrontEnd.h"

namespace nomra::core {

// The wait pointer for as long as long work runs; it comes back however the
// work ends, a fault included, so the pointer never stays an hourglass.
class BusyPointer {
 public:
  explicit BusyPointer(FrontEnd& frontEnd) : frontEnd_(frontEnd) { frontEnd_.SetBusy(true); }
  ~BusyPointer() { frontEnd_.SetBusy(false); }
  BusyPointer(const BusyPointer&) = delete;
  BusyPointer& operator=(const BusyPointer&) = delete;

 private:
  FrontEnd& frontEnd_;
};

}  // namespace nomra::core
