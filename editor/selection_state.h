// What the operations on the selection share: reaching the selected object, adding one.
#pragma once

#include <vector>

#include "editor/selection.h"
#include "level/globals.h"

namespace selection {

/// Element SelectedIndex of the collection. Throws std::out_of_range when there is none.
template <typename Object>
Object& Selected(std::vector<Object>& collection) {
  return collection.at(static_cast<size_t>(Document.SelectedIndex));
}

/// The moving platform at SelectedIndex, whether it is selected or only was; null when the type is
/// another or the platform is gone.
inline clsMovingPlatform* PlatformAtIndex() {
  const bool exists = Document.SelectedType == TypePlatform && Document.SelectedIndex >= 0 &&
                      Document.SelectedIndex <= Document.PlatformCount;
  return exists ? &Selected(Document.Platforms) : nullptr;
}

/// Puts a finished object at the end of its collection and makes it the selected one in place of
/// the old; highlighting it is the caller's.
template <typename Object>
Object& AppendAndSelect(std::vector<Object>& collection, int32_t& count, Object object,
                        ObjectType type) {
  collection.resize(static_cast<size_t>(count) + 1);  // an index of -1 is no element
  collection.push_back(std::move(object));
  ++count;
  DeselectCurrent();
  Document.SelectedType = type;
  Document.SelectedIndex = count;
  Document.ObjectSelected = true;
  return collection.back();
}

}  // namespace selection
