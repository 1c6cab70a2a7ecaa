#pragma once
// A point on the drawing surface in form units: x to the right, y downward. The editor's
// state already holds its points as FormPosition; this is the same type under the name the
// editing operations use.

#include "model/editor_state.h"

namespace quorn {

using FormPoint = FormPosition;

}  // namespace quorn
