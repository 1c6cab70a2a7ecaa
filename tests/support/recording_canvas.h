#pragma once
// A Canvas fake: records every call so tests can assert on what was drawn.

#include <ostream>
#include <vector>

#include "display/canvas.h"

namespace quorn::test {

enum class CallKind { Clear, Line, Circle };

/// One recorded call. A line runs from (x1, y1) to (x2, y2); a circle has its centre in
/// (x1, y1) and its radius in `radius`; a clear has only its kind.
struct CanvasCall {
  CallKind kind = CallKind::Clear;
  double x1 = 0, y1 = 0, x2 = 0, y2 = 0;
  double radius = 0;
  Pen pen;
  friend bool operator==(const CanvasCall&, const CanvasCall&) = default;
};

CanvasCall clearCall();
CanvasCall lineCall(double x1, double y1, double x2, double y2, const Pen& pen);
CanvasCall circleCall(double cx, double cy, double radius, const Pen& pen);

/// Readable failure messages in GoogleTest.
void PrintTo(const CanvasCall& call, std::ostream* out);
std::ostream& operator<<(std::ostream& out, const Pen& pen);

class RecordingCanvas : public Canvas {
 public:
  void clear() override;
  void line(double x1, double y1, double x2, double y2, const Pen& pen) override;
  void circle(double cx, double cy, double radius, const Pen& pen) override;

  const std::vector<CanvasCall>& calls() const { return calls_; }
  /// Forgets what was recorded (not a call on the canvas).
  void reset() { calls_.clear(); }

  /// The calls of one kind, in order.
  std::vector<CanvasCall> ofKind(CallKind kind) const;
  /// The calls of one kind drawn with a pen of the given colour, in order.
  std::vector<CanvasCall> ofKind(CallKind kind, int colour) const;
  int count(CallKind kind) const;
  int count(CallKind kind, int colour) const;
  /// The calls after the last clear (all of them when there was none).
  std::vector<CanvasCall> sinceLastClear() const;

 private:
  std::vector<CanvasCall> calls_;
};

}  // namespace quorn::test
