#include "support/recording_canvas.h"

#include <algorithm>

namespace quorn::test {

CanvasCall clearCall() {
  return CanvasCall{};
}

CanvasCall lineCall(double x1, double y1, double x2, double y2, const Pen& pen) {
  return CanvasCall{CallKind::Line, x1, y1, x2, y2, 0, pen};
}

CanvasCall circleCall(double cx, double cy, double radius, const Pen& pen) {
  return CanvasCall{CallKind::Circle, cx, cy, 0, 0, radius, pen};
}

std::ostream& operator<<(std::ostream& out, const Pen& pen) {
  static constexpr const char* kStyles[] = {"solid", "dotted", "dashed"};
  return out << "pen(colour " << pen.colour << ", " << kStyles[static_cast<int>(pen.style)]
             << ", width " << pen.width << ")";
}

void PrintTo(const CanvasCall& call, std::ostream* out) {
  switch (call.kind) {
    case CallKind::Clear:
      *out << "clear()";
      break;
    case CallKind::Line:
      *out << "line(" << call.x1 << ", " << call.y1 << " to " << call.x2 << ", " << call.y2 << ", "
           << call.pen << ")";
      break;
    case CallKind::Circle:
      *out << "circle(" << call.x1 << ", " << call.y1 << " radius " << call.radius << ", "
           << call.pen << ")";
      break;
  }
}

void RecordingCanvas::clear() {
  calls_.push_back(clearCall());
}

void RecordingCanvas::line(double x1, double y1, double x2, double y2, const Pen& pen) {
  calls_.push_back(lineCall(x1, y1, x2, y2, pen));
}

void RecordingCanvas::circle(double cx, double cy, double radius, const Pen& pen) {
  calls_.push_back(circleCall(cx, cy, radius, pen));
}

std::vector<CanvasCall> RecordingCanvas::ofKind(CallKind kind) const {
  std::vector<CanvasCall> result;
  std::copy_if(calls_.begin(), calls_.end(), std::back_inserter(result),
               [kind](const CanvasCall& call) { return call.kind == kind; });
  return result;
}

std::vector<CanvasCall> RecordingCanvas::ofKind(CallKind kind, int colour) const {
  std::vector<CanvasCall> result;
  std::copy_if(calls_.begin(), calls_.end(), std::back_inserter(result),
               [kind, colour](const CanvasCall& call) {
                 return call.kind == kind && call.pen.colour == colour;
               });
  return result;
}

int RecordingCanvas::count(CallKind kind) const {
  return static_cast<int>(ofKind(kind).size());
}

int RecordingCanvas::count(CallKind kind, int colour) const {
  return static_cast<int>(ofKind(kind, colour).size());
}

std::vector<CanvasCall> RecordingCanvas::sinceLastClear() const {
  const auto lastClear = std::find_if(calls_.rbegin(), calls_.rend(), [](const CanvasCall& call) {
    return call.kind == CallKind::Clear;
  });
  return std::vector<CanvasCall>(lastClear.base(), calls_.end());
}

}  // namespace quorn::test
