// How the X server reports held keys.
#pragma once

namespace qt {

/// Asks the X server to send no releases for a key that is still held. The toolkit recognises such
/// releases only when the press that follows has already arrived, which is a matter of luck.
/// Elsewhere nothing happens.
void StopAutoRepeatReleases();

}  // namespace qt
