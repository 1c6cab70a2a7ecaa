#include "edit/drawing_engine.h"

#include <cstddef>
#include <string>

#include "edit/drawing_steps.h"
#include "edit/drawing_texts.h"
#include "edit/drawn_slots.h"
#include "edit/editing_texts.h"
#include "edit/grid_frame.h"
#include "edit/grid_point.h"
#include "edit/undo.h"

namespace quorn {

namespace {

bool isPolylineItem(PendingItem item) {
  return item == PendingItem::Line || item == PendingItem::Insulation ||
         item == PendingItem::Tracing;
}

/// Lines, insulation or tracing are being drawn from LastPoint.
bool polylineUnderWay(const DrawingContext& context) {
  const EditorState& state = context.state;
  return state.symbolOnSurface && state.operation == EditOperation::Draw &&
         isPolylineItem(state.pendingItem) && !state.newStrokePending &&
         hasStartPoint(context.working);
}

std::int16_t segmentCode(PendingItem item) {
  switch (item) {
    case PendingItem::Insulation:
      return kInsulation;
    case PendingItem::Tracing:
      return kTracing;
    default:
      return kLine;
  }
}

StepKind segmentStep(PendingItem item) {
  switch (item) {
    case PendingItem::Insulation:
      return StepKind::Insulation;
    case PendingItem::Tracing:
      return StepKind::Tracing;
    default:
      return StepKind::Line;
  }
}

std::string_view strokeStartedPrompt(PendingItem item) {
  switch (item) {
    case PendingItem::Insulation:
      return kInsulationEndPrompt;
    case PendingItem::Tracing:
      return kTracingEndPrompt;
    default:
      return kLineEndPrompt;
  }
}

void refuseForLimit(DrawingContext& context) {
  context.messages.tell(stepLimitText(kMaxEditingSteps));
}

void placeStartPoint(DrawingContext& context) {
  EditorState& state = context.state;
  WorkingSymbol& working = context.working;
  working.slots[kStartSlot] = WorkingAction{kMove, state.cursorPoint.x, state.cursorPoint.y};
  working.actionCount = kStartSlot;
  state.undoHistory.push_back(StepKind::StartPoint);
  state.symbolPending = true;
  drawAction(context.canvas, working, kStartSlot, surfaceStyle(context.window), context.config);
  // Line drawing follows from the start point.
  state.strokeStart = state.lastPoint = state.cursorPoint;
  state.newStrokePending = false;
  state.pendingItem = PendingItem::Line;
  setPrompt(context.window, kLineEndPrompt);
}

void extendPolyline(DrawingContext& context) {
  EditorState& state = context.state;
  const FormPoint point = state.cursorPoint;
  if (state.newStrokePending) {
    if (!appendAction(context, kMove, point, StepKind::PenUpMove)) return refuseForLimit(context);
    state.strokeStart = state.lastPoint = point;
    state.newStrokePending = false;
    setPrompt(context.window, strokeStartedPrompt(state.pendingItem));
    return;
  }
  const std::int16_t code = segmentCode(state.pendingItem);
  const bool character = code == kLine && state.charMode;
  if (!appendAction(context, code, point, segmentStep(state.pendingItem), character)) {
    return refuseForLimit(context);
  }
  state.lastPoint = point;
}

void placeTappingPoint(DrawingContext& context) {
  if (context.working.tappingCount >= kMaxTappingPoints) {
    context.messages.tell(std::string(kNineTappingPointsText));
    return;
  }
  if (!appendAction(context, kTappingPoint, context.state.cursorPoint, StepKind::TappingPoint)) {
    return refuseForLimit(context);
  }
  ++context.working.tappingCount;
}

/// The spindle point or the end point into its own slot; line drawing is pending again.
void placeSinglePoint(DrawingContext& context, int slot, std::int16_t code, StepKind step) {
  EditorState& state = context.state;
  context.working.slots[static_cast<std::size_t>(slot)] =
      WorkingAction{code, state.cursorPoint.x, state.cursorPoint.y};
  (slot == kEndSlot ? state.endPointPlaced : state.spindlePointPlaced) = true;
  state.undoHistory.push_back(step);
  state.symbolPending = true;
  drawAction(context.canvas, context.working, slot, surfaceStyle(context.window), context.config);
  awaitNewLine(context, kMoveModePrompt);
}

/// Carries out what a click of an arc or circle asked for. The first point is a pen-up move,
/// the others lines, flagged in character mode.
void applyConstruction(DrawingContext& context, const ConstructionOutcome& outcome,
                       bool& inProgress) {
  EditorState& state = context.state;
  if (!outcome.message.empty()) context.messages.tell(std::string(outcome.message));
  for (std::size_t i = 0; i < outcome.points.size(); ++i) {
    const bool first = i == 0;
    if (!appendAction(context, first ? std::int16_t{kMove} : std::int16_t{kLine}, outcome.points[i],
                      first ? StepKind::PenUpMove : StepKind::Line, !first && state.charMode)) {
      break;
    }
  }
  if (outcome.lastPoint) state.lastPoint = *outcome.lastPoint;
  if (outcome.strokeStart) state.strokeStart = *outcome.strokeStart;
  inProgress = !outcome.finished;
  if (outcome.finished) {
    awaitNewLine(context, outcome.prompt);
  } else if (!outcome.prompt.empty()) {
    setPrompt(context.window, outcome.prompt);
  }
}

SymbolRoom symbolRoom(const WorkingSymbol& working) {
  return SymbolRoom{working.actionCount, kSpindleSlot - 1 - working.actionCount};
}

void leftClickInDraw(DrawingContext& context) {
  EditorState& state = context.state;
  if (static_cast<int>(state.undoHistory.size()) >= kMaxEditingSteps) {
    return refuseForLimit(context);
  }
  if (!hasStartPoint(context.working)) return placeStartPoint(context);
  if (state.pendingItem == PendingItem::StartPoint) state.pendingItem = PendingItem::Line;
  switch (state.pendingItem) {
    case PendingItem::Line:
    case PendingItem::Insulation:
    case PendingItem::Tracing:
    case PendingItem::StartPoint:
      extendPolyline(context);
      break;
    case PendingItem::TappingPoint:
      placeTappingPoint(context);
      break;
    case PendingItem::SpindlePoint:
      placeSinglePoint(context, kSpindleSlot, kSpindlePoint, StepKind::SpindlePoint);
      break;
    case PendingItem::EndPoint:
      placeSinglePoint(context, kEndSlot, kWorkingEndPoint, StepKind::EndPoint);
      break;
    case PendingItem::Arc:
      applyConstruction(
          context,
          context.session.arc.click(state.cursorPoint, context.config.segmentsIn180Arc,
                                    symbolRoom(context.working)),
          state.arcInProgress);
      break;
    case PendingItem::Circle:
      applyConstruction(
          context,
          context.session.circle.click(state.cursorPoint, context.config.noOfSegments,
                                       gridFrame(context.grid), symbolRoom(context.working)),
          state.circleInProgress);
      break;
    case PendingItem::WholeSymbol:
      break;
  }
}

void leftClick(DrawingContext& context) {
  EditorState& state = context.state;
  switch (state.operation) {
    case EditOperation::Draw:
      leftClickInDraw(context);
      break;
    case EditOperation::Delete: {
      const SegmentPainter paint = [&context](const WorkingAction& from, const WorkingAction& to,
                                              int colour) {
        context.canvas.line(from.x, from.y, to.x, to.y,
                            Pen{colour, PenStyle::Solid, kStandardWidth});
      };
      if (deleteAtCursor(state, context.working, gridFrame(context.grid), context.messages,
                         paint)) {
        redrawSurface(context);
      }
      break;
    }
    case EditOperation::Move:
      if (moveAtCursor(state, context.working, gridFrame(context.grid), context.messages)) {
        redrawSurface(context);
      }
      break;
  }
}

void rightClick(DrawingContext& context) {
  EditorState& state = context.state;
  if (!state.symbolOnSurface) {
    setPrompt(context.window, kSelectNewSymbolPrompt);
    return;
  }
  const bool wasDrawing = state.operation == EditOperation::Draw;
  returnToDraw(context);
  context.window.flipChoiceVisible = false;
  redrawSurface(context);
  if (!wasDrawing) {
    cancelConstructions(context);
    state.strokeStart = state.lastPoint = FormPoint{};
    awaitNewLine(context, kOperationCancelledPrompt);
    return;
  }
  if (state.arcInProgress || state.circleInProgress) {
    cancelConstructions(context);
    state.pendingItem = PendingItem::Line;
  }
  state.newStrokePending = true;
  setPrompt(context.window, hasStartPoint(context.working) ? kMoveModePrompt : kStartPointPrompt);
}

/// Menu entries act on the symbol on the surface, from its start point on.
bool readyForMenuEntry(DrawingContext& context) {
  if (!context.state.symbolOnSurface) {
    context.messages.tell(std::string(kInitiateNewSymbolText));
    return false;
  }
  if (!hasStartPoint(context.working)) {
    returnToDraw(context);
    awaitNewLine(context, kStartPointPrompt);
    return false;
  }
  return true;
}

}  // namespace

void pressMouse(DrawingContext& context, MouseButton button, float x, float y) {
  context.state.cursorPoint = gridPointOf(x, y, context.state.snapOn, context.grid);
  if (button == MouseButton::Right) return rightClick(context);
  if (!context.state.symbolOnSurface) return;
  leftClick(context);
}

void moveMouse(DrawingContext& context, float x, float y) {
  EditorState& state = context.state;
  context.window.hint.clear();
  context.window.pointer = withinGrid(x, y, context.grid) ? Pointer::Crosshair : Pointer::Normal;
  state.cursorPoint = gridPointOf(x, y, state.snapOn, context.grid);
  if (polylineUnderWay(context)) {
    redrawSurface(context);
    drawRubberBand(context.canvas, state.lastPoint, state.cursorPoint,
                   segmentCode(state.pendingItem), surfaceStyle(context.window), context.config);
    context.session.rubberBandShown = true;
  } else if (context.session.rubberBandShown) {
    redrawSurface(context);
  }
}

void openDeleteMenu(DrawingContext& context) {
  if (!context.state.symbolOnSurface) return;
  cancelConstructions(context);
  quorn::openDeleteMenu(context.state, context.window);
}

void chooseDeleteEntry(DrawingContext& context, DeleteEntry entry) {
  if (!readyForMenuEntry(context)) return;
  if (context.state.operation != EditOperation::Delete) openDeleteMenu(context);
  quorn::chooseDeleteEntry(entry, context.state, context.window, context.messages);
}

bool chooseDeleteSymbol(DrawingContext& context) {
  if (!context.state.symbolOnSurface) {
    context.messages.tell(std::string(kInitiateNewSymbolText));
    return false;
  }
  return deleteSymbolFromSet(context.state, context.set, context.window, context.messages);
}

void openMoveMenu(DrawingContext& context) {
  if (!context.state.symbolOnSurface) return;
  if (context.state.operation == EditOperation::Delete) returnToDraw(context);
  cancelConstructions(context);
  quorn::openMoveMenu(context.state, context.window);
}

void chooseMoveEntry(DrawingContext& context, MoveEntry entry) {
  if (!readyForMenuEntry(context)) return;
  if (context.state.operation != EditOperation::Move) openMoveMenu(context);
  quorn::chooseMoveEntry(entry, context.state, context.window, context.messages);
}

void chooseFlip(DrawingContext& context, FlipAxis axis) {
  context.window.flipChoiceVisible = false;
  if (!context.state.symbolOnSurface) return;
  flipSymbol(axis, context.state, context.working, gridFrame(context.grid));
  redrawSurface(context);
}

void redrawSurface(DrawingContext& context) {
  redrawGrid(context.canvas, context.grid, context.config);
  if (hasStartPoint(context.working)) {
    drawWorkingSymbol(context.canvas, context.working,
                      PlacedPoints{context.state.endPointPlaced, context.state.spindlePointPlaced},
                      surfaceStyle(context.window), context.config);
  }
  context.session.rubberBandShown = false;
}

}  // namespace quorn
