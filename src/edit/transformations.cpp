#include "edit/transformations.h"

#include <algorithm>
#include <string>
#include <vector>

#include "edit/drawn_slots.h"
#include "edit/editing_texts.h"

namespace quorn {

namespace {

/// The points that move with the symbol: the drawn actions from the start point on, then the
/// spindle and end points where placed.
std::vector<WorkingAction*> symbolPoints(const EditorState& state, WorkingSymbol& working) {
  std::vector<WorkingAction*> points;
  for (int slot = kStartSlot; slot <= lastDrawnSlot(working); ++slot) {
    points.push_back(&working.slots[slot]);
  }
  if (state.spindlePointPlaced) points.push_back(&working.slots[kSpindleSlot]);
  if (state.endPointPlaced) points.push_back(&working.slots[kEndSlot]);
  return points;
}

void flipTopToBottom(const std::vector<WorkingAction*>& points, const WorkingSymbol& working,
                     const GridFrame& grid) {
  std::int32_t smallestY = working.slots[kStartSlot].y;
  for (int slot = kStartSlot; slot <= lastDrawnSlot(working); ++slot) {
    smallestY = std::min(smallestY, working.slots[slot].y);
  }
  for (WorkingAction* point : points) point->y = grid.bottomY() - (point->y - smallestY);
}

void flipLeftToRight(const std::vector<WorkingAction*>& points) {
  std::int32_t largestX = points.front()->x;
  for (const WorkingAction* point : points) largestX = std::max(largestX, point->x);
  for (WorkingAction* point : points) point->x = kGridLeft + (largestX - point->x);
}

}  // namespace

bool moveSymbolTo(FormPosition newStart, const EditorState& state, WorkingSymbol& working,
                  const GridFrame& grid, Messages& messages) {
  if (lastDrawnSlot(working) < kStartSlot) return false;
  const std::int32_t dx = newStart.x - working.slots[kStartSlot].x;
  const std::int32_t dy = newStart.y - working.slots[kStartSlot].y;
  const std::vector<WorkingAction*> points = symbolPoints(state, working);
  const bool fits = std::all_of(points.begin(), points.end(), [&](const WorkingAction* point) {
    return point->x + dx >= kGridLeft && point->y + dy <= grid.bottomY();
  });
  if (!fits) {
    messages.tell(std::string(kSymbolDoesNotFit));
    return false;
  }
  for (WorkingAction* point : points) {
    point->x += dx;
    point->y += dy;
  }
  return true;
}

void flipSymbol(FlipAxis axis, EditorState& state, WorkingSymbol& working, const GridFrame& grid) {
  if (lastDrawnSlot(working) < kStartSlot) return;
  const std::vector<WorkingAction*> points = symbolPoints(state, working);
  if (axis == FlipAxis::Horizontal) {
    flipTopToBottom(points, working, grid);
  } else {
    flipLeftToRight(points);
  }
  state.symbolPending = true;
}

void toggleIsoView(EditWindowState& window) {
  window.isometric = !window.isometric;
  window.isoCaption = std::string(window.isometric ? kOrthoCaption : kIsoCaption);
}

}  // namespace quorn
