// How the X server reports held keys. Elsewhere these functions do nothing.
#pragma once

#include <bitset>

namespace qt {

/// Asks the X server to send no releases for a key that is still held. The toolkit recognises such
/// releases only when the press that follows has already arrived, which is a matter of luck.
void StopAutoRepeatReleases();

/// The keys that are down now, by their native codes, whichever window they went to.
std::bitset<256> KeysDown();

}  // namespace qt
