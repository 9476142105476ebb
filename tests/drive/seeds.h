// How long tests over random tracks run: `drive_tests --seeds N` tries N of each instead of a few.
#pragma once

/// The usual number, or what the command line says.
int Seeds(int usually);
