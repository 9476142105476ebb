#include "level/globals.h"

LevelDocument Document;

TrackValues& Track() { return Document; }
