#include "platform/error_text.h"

#include <clocale>
#include <cstring>

std::string ErrorText(int number) {
  // The toolkit sets the user's locale, and strerror follows it; the program's texts are English.
  static const locale_t english = newlocale(LC_ALL_MASK, "C", nullptr);
  return strerror_l(number, english);
}
