// Puts the device's states back after a drawing that nobody else shall notice.
#pragma once

#include "platform/device.h"

/// Keeps depth, blending and the world transform; they are again as they were when it goes.
class KeptStates {
 public:
  explicit KeptStates(Device& device);
  ~KeptStates();
  KeptStates(const KeptStates&) = delete;
  KeptStates& operator=(const KeptStates&) = delete;

 private:
  Device& device_;
  DeviceStates states_;
  Matrix4 world_;
};
