// Lets one allocation of the test program fail.
#pragma once

/// So many allocations are served, the next one fails; below 0: all are served.
extern int servedAllocations;
