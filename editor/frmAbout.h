// The About window.
#pragma once

#include "platform/controls.h"

class frmAbout {
 public:
  frmAbout();
  /// Shows the window beside the main one.
  void Show();

  Window window;
  PictureArea picIcon;
  Label lblTitle, lblVersion;
  Button cmdOK;

 private:
  void Form_Load();
};
