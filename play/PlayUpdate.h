// The game itself: gravity, collisions, stars, and the ends of a run.
#pragma once

/// One frame of the game, in play mode, after the keyboard poll and before the rendering, whose
/// drawing of the car moves it. Rewrites the car's velocities so that its step ends on or against
/// surfaces; starts the explosion, or sets DeathStatus, where a run ends.
void PlayUpdate();
