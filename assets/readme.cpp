#include "assets/readme.h"

namespace art {
namespace {

constexpr char kStart[] = R"(VORBILAX LEVEL EDITOR
=====================

Build race tracks in the air out of blocks, ramps, pads, moving platforms and
stars - then drive them.


FIRST STEPS
-----------
1. Press Space to put a block in front of you, and move it with the arrow keys.
2. Make it wider or longer with the number pad, add more blocks and a ramp.
3. Double click on a texture to paint what is selected.
4. Put a WIN block at the end (Ctrl+W).
5. Press F3 and drive. F4 brings you back to editing.


THE MENUS
---------
File    New                  F2
        Open Track           Ctrl+O
        Save Track           Ctrl+S
        Save Track As
        Quit                 Ctrl+Q

Edit    Copy                 Ctrl+C
        Cut                  Ctrl+X
        Paste                Ctrl+V
        Undo                 Ctrl+Z
        Redo                 Ctrl+Y or Ctrl+Shift+Z
        Duplicate            Ctrl+D

Mode    Play Mode!           F3
        Edit Mode            F4

Insert  New Block            Space
        Moving Platform      Ctrl+M
        Instant Kill Block   Ctrl+K
        Falling Block        Ctrl+F
        Ice Block            Ctrl+I
        Ramp                 Ctrl+R
        Win Level            Ctrl+W
        Jump Pad             Ctrl+J
        Turbo Pad            Ctrl+T
        Building             Ctrl+B
        Star                 F5

Background
        1 to 6               the picture behind the track

Gravity Normal               F11
        Low                  F12

Drive   Show Drive           F6
        Drive From Here      F7
        Find A Winning Drive F8
        Watch Drive          F9
        Save Drive
        Best Win
        Check Track

Help    About                Ctrl+A
        How to Use           F1
)";

constexpr char kKeys[] = R"(

EDITING WITH THE KEYBOARD
-------------------------
Left, Right           move the selection across the track
Up, Down              move it along the track
A, Z                  move it up and down
Delete                delete it
Keypad 7 or 9         one higher
Keypad 1 or 3         one lower
Keypad 6 and 4        one wider, one narrower
Keypad 8 and 2        one deeper, one shallower
Period and comma      next and previous texture
Enter                 paint the selection with the current texture
Shift+Up, Shift+Down  move the camera along the track; so does the scroll bar


EDITING WITH THE MOUSE
----------------------
Click                 pick a piece
Drag                  move it over the ground, in whole units; with Shift up
                      and down; Escape puts it back
Wheel                 move the camera along the track
Right click           show what kind a block is; a platform or ramp is
                      painted whole
Shift+right click     paint the one face under the pointer
Double click on a     paint the selection with it
texture

Duplicate puts a copy of the selected piece directly behind it.

Moving platforms must stand still before they can be altered: choose
"Pause Platforms" first.


PLAYING
-------
Left, Right           steer
Up, Down              accelerate and brake
Space, Shift or Ctrl  jump

Land on the WIN block to finish the track.
Jump pads throw you up, turbo pads push you on, ice leaves you no grip, and
falling blocks do not wait. Red crosses kill. Collect the stars on the way.
Whoever falls off starts again.


SEE THE DRIVE
-------------
The editor remembers your last drive, from its start to the win, the crash, the
fall or F4, and your quickest win.

Show Drive (F6) draws it through the track as a ribbon: blue is slow, yellow is
fast, red is faster than the engine; a bar stands for each second. Triangles
show where the car takes off and lands, stars what it picks up, rings its pads.
What lies behind a piece is faint. The line below tells how the drive ends.

Change the track, and the same keys are driven again at once: you see where the
car goes now. A thin grey line shows where it went before. A click on the
ribbon brings the camera there. While platforms are paused they stand, and a
ghost of the car with them, as when the drive comes to where the camera looks.

Drive From Here (F7) puts you into the drive where the camera looks: same
place, same speed, everything as it was. Whoever dies begins there again.
Watch Drive (F9) lets the drive run; the first key you touch is yours.

Find A Winning Drive (F8) asks whether the track can be won at all. It searches
while you build; the line below tells what it knows, and a violet ribbon shows
the drive that it found. With Show Drive off, F7, F9 and Save Drive are about
that one. What is not found may still be possible: only "No WIN block can be
reached" is certain.

Check Track lists what is wrong with the track; a click on a line leads there.

Save Drive writes the keys beside the track, into NAME.keys; opening the track
brings them back. With Best Win checked all of this is about your quickest win.


NOTHING YOU DO IS FINAL
-----------------------
Every change of the track can be undone and done again, step by step: a new
track and an opened one too, and after a drive as well. A held key, a held
arrow of the panel and a drag are one step each.

While the track differs from its file, a safety copy is made every minute, and
before a new track, opening, driving and leaving. So is one of what a save
would write over although you have not seen it. The copies lie in

    levels/backup

or, where that cannot be written, in .local/state/vorbilax-level-editor/backup
in your home folder. They bear the track's name and the time; the newest 20 of
a track stay. Open one as you open any track; saving it then asks for a name.


THE FOLDERS
-----------
levels        the tracks and drives; in levels/backup their safety copies
textures      what blocks can wear: add your own .bmp pictures
backgrounds   the pictures behind the tracks
models, skins the car and the star
misc          explosion, sparks, shadow and icon
)";

}  // namespace

std::string ReadmeText() {
  std::string text(kStart);
  text += kKeys;
  return text;
}

}  // namespace art
