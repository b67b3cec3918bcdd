// A drawing surface common to the window, the preview and the printer.
#pragma once
#include <QString>

#include "ui/font.h"

namespace quillane {

/// A picture: where it comes from and its natural size in twips (a pixel is 15).
struct Picture {
  QString source;  ///< a file's path, or ":/..." for one of the program's own drawings; empty for none
  float width = 0;
  float height = 0;
  bool operator==(const Picture&) const = default;
};

/// All coordinates are twips from the top left corner of the sheet, less the origin.
class Surface {
 public:
  virtual ~Surface() = default;
  virtual void SetOrigin(float scaleLeft, float scaleTop) = 0;
  /// The origin as it stands; a surface that never moves it keeps these.
  virtual float ScaleLeft() const { return 0; }
  virtual float ScaleTop() const { return 0; }
  virtual void SetFont(const Font& font) = 0;
  virtual void SetColor(Color color) = 0;
  /// Prints one line of text whose top left corner is (x, y).
  virtual void Print(float x, float y, const QString& text) = 0;
  virtual float Width(const QString& text) const = 0;
  virtual void Line(float x1, float y1, float x2, float y2, Color color, float width) = 0;
  virtual void FillRect(float x, float y, float width, float height, Color color) = 0;
  virtual void PaintPicture(const Picture& picture, float x, float y, float width, float height) = 0;
  /// Ends a sheet of the document; what follows goes onto the next one.
  virtual void NewPage() {}
  /// Ends the document and sends it out.  Throws 482 when the printer fails.
  virtual void EndDoc() {}
  /// Drops the document.
  virtual void KillDoc() {}
};

}  // namespace quillane
