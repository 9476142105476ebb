#include "editor/frmMain.h"
#include "files/FileIO.h"
#include "level/globals.h"

void frmMain::ConnectEvents() {
  MainControls& c = controls;
  c.frmMain.onUnload = [this] { Shutdown(); };
  c.VScroll1.onChange = [this] { VScroll1_Change(); };

  c.mnu_New.onClick = [this] { NewTrack(); };
  c.mnu_load.onClick = [this] { mnu_load_Click(); };
  c.mnu_save.onClick = [] { FileIO::SaveTrack(); };
  c.mnu_saveAS.onClick = [] { FileIO::SaveTrackDialog(); };
  c.mnu_Quit.onClick = [this] { Shutdown(); };

  c.mnu_playmode.onClick = [this] { mnu_playmode_Click(); };
  c.mnu_editmode.onClick = [this] { mnu_editmode_Click(); };

  const auto backdrops = c.BackgroundItems();
  for (size_t item = 0; item < backdrops.size(); ++item) {
    backdrops[item]->onClick = [this, item] { ChooseBackdrop(item); };
  }
  c.mnu_normal.onClick = [this] { ChooseGravity(kNormalGravity); };
  c.mnu_low.onClick = [this] { ChooseGravity(kLowGravity); };

  c.mnu_about.onClick = [this] { about.Show(); };
  c.mnu_Shortcut.onClick = [this] { mnu_Shortcut_Click(); };
}
