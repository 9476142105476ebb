// The Check Track window: what is wrong with the track, and the way there.
#pragma once

#include <cstdint>
#include <tuple>

#include "check/findings.h"
#include "platform/clock.h"
#include "platform/controls.h"

class CheckWindow {
 public:
  explicit CheckWindow(Clock& clock);
  /// Checks the track and shows the window beside the main one.
  void Show();
  /// In every frame: while the window is open, its list follows the track.
  void Update();

  Window window;
  Label lblFound;
  ItemList lstFindings;
  Button cmdClose;

 private:
  /// Another one for another track and for another state of it.
  using Version = std::tuple<uint64_t, uint32_t>;
  static Version Present();

  void Close();
  void Check();
  void ShowFindings();
  void GoTo();

  Clock& clock_;
  bool open_ = false;
  Version checked_;
  int64_t nextCheck_ = 0;  ///< not before this count of the clock
  check::Findings findings_;
};
