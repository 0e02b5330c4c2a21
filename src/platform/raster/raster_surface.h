// A surface in memory: the kept picture, and a transient layer above it while AutoRedraw is false.
#pragma once

#include <memory>

#include "platform/surface.h"

namespace trelvo {

class RasterContext;

class RasterSurface : public Surface {
 public:
  explicit RasterSurface(FontService& fonts);
  ~RasterSurface() override;

  // Logical size in twips, multiples of 15. Keeps the common part of the picture, the rest in BackColor.
  void resize(float width, float height);

  // True draws on the kept picture, false on the transient layer. Turning it true drops the transient layer.
  void set_AutoRedraw(bool kept);
  bool AutoRedraw() const { return kept_; }

  // The kept picture.
  const Bitmap& Image() const;
  // The kept picture with the transient layer above it.
  const Bitmap& screen() const;
  // True while a transient layer exists.
  bool has_transient() const;
  // Grows with each painting, so that a window knows when to show the picture again.
  std::uint64_t version() const { return version_; }

  DeviceContext& hDC() override;

 protected:
  void paint_cls() override;
  void paint_line(double x1, double y1, double x2, double y2, Color color) override;
  void paint_pset(double x, double y, Color color) override;

 private:
  friend class RasterContext;
  Bitmap& target();
  // The pixels per unit, kept until the unit changes.
  double scale();

  FontService& fonts_;
  std::unique_ptr<RasterContext> context_;
  Bitmap picture_;
  Bitmap transient_;
  int scaled_mode_ = -1;
  double scale_ = 1;
  bool kept_ = true;
  bool has_transient_ = false;
  std::uint64_t version_ = 0;
};

}  // namespace trelvo
