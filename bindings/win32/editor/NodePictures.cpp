// SPDX-FileCopyrightText: The KOBTraduction authors
#include "NodePictures.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <vector>

// Drawn by samples of plain shapes, because the system's own lines have hard edges.
namespace kob::win32 {

namespace {

/// Drawings are made in a square of this size.
constexpr double grid = 16;
/// Samples of a pixel in each direction.
constexpr int samples = 6;
constexpr int pictures = 5;

constexpr std::uint32_t nodeColour = 0xc08a2e;
constexpr std::uint32_t controlColour = 0x3f7fc4;
constexpr std::uint32_t messageColour = 0x4c9a5f;
constexpr std::uint32_t contextColour = 0xd9534f;
constexpr std::uint32_t inside = 0xf6f7f9;
/// Parts a drawing from a background of its own colour, such as that of the selected node.
constexpr double outline = 0.4;

struct Point {
  double x;
  double y;
};

/// How far a point is outside a rectangle with round corners; negative within it.
double outsideRectangle(Point p, double left, double top, double right, double bottom, double corner) {
  const double x = std::abs(p.x - (left + right) / 2) - (right - left) / 2 + corner;
  const double y = std::abs(p.y - (top + bottom) / 2) - (bottom - top) / 2 + corner;
  return std::hypot(std::max(x, 0.0), std::max(y, 0.0)) + std::min(std::max(x, y), 0.0) - corner;
}

double outsideCircle(Point p, Point centre, double radius) {
  return std::hypot(p.x - centre.x, p.y - centre.y) - radius;
}

/// How far a point is from a level line with round ends, beyond half its width.
double outsideLine(Point p, double left, double right, double y, double width) {
  return std::hypot(p.x - std::clamp(p.x, left, right), p.y - y) - width / 2;
}

/// A sheet with a tab.
double outsideFolder(Point p) {
  return std::min(outsideRectangle(p, 1, 5.5, 15, 13, 0.5), outsideRectangle(p, 1, 3.5, 7.2, 12, 0.5));
}

/// A speech bubble: its tip is the triangle below the left part.
double outsideBubble(Point p) {
  const double tip = std::max({4 - p.x, 9 - p.y, (p.x + p.y - 18.5) / std::sqrt(2.0)});
  return std::min(outsideRectangle(p, 1, 2, 15, 11, 2.5), tip);
}

struct Sample {
  std::uint32_t colour = 0;
  bool isPainted = false;

  /// Paints over what is there where the distance is inside.
  void paint(double outsideBy, std::uint32_t with) {
    if (outsideBy <= 0) {
      colour = with;
      isPainted = true;
    }
  }
  void paintOutlined(double outsideBy, std::uint32_t with) {
    paint(outsideBy - outline, inside);
    paint(outsideBy + outline, with);
  }
};

Sample sampleOf(int picture, Point p) {
  Sample sample;
  if (picture == 1) {
    sample.paintOutlined(outsideFolder(p), nodeColour);
    sample.paint(outsideLine(p, 3, 13, 8, 1.2), inside);
  } else if (picture <= 3) {
    sample.paintOutlined(outsideRectangle(p, 1, 3.5, 15, 12.5, 2), controlColour);
    sample.paint(outsideLine(p, 4, 12, 8, 1.5), inside);
  } else {
    sample.paintOutlined(outsideBubble(p), messageColour);
    sample.paint(outsideLine(p, 4, 12, 5, 1.3), inside);
    sample.paint(outsideLine(p, 4, 9.5, 8, 1.3), inside);
  }
  if (picture == 3 || picture == 5) {
    sample.paintOutlined(outsideCircle(p, {12, 12}, 3.3), contextColour);
  }
  return sample;
}

/// A pixel with its opacity, by which its colour is multiplied.
std::uint32_t pixelOf(int picture, int x, int y, int size) {
  std::uint32_t painted = 0;
  std::uint32_t sums[3] = {};
  for (int i = 0; i < samples * samples; ++i) {
    const double step = grid / size / samples;
    const int column = x * samples + i % samples;
    const int row = y * samples + i / samples;
    const Sample sample = sampleOf(picture, {(column + 0.5) * step, (row + 0.5) * step});
    painted += sample.isPainted ? 1 : 0;
    for (int channel = 0; channel < 3; ++channel) {
      sums[channel] += (sample.colour >> (8 * channel)) & 0xff;
    }
  }
  constexpr std::uint32_t all = samples * samples;
  return (painted * 255 / all) << 24 | (sums[2] / all) << 16 | (sums[1] / all) << 8 | sums[0] / all;
}

HBITMAP pictureOf(int picture, int size) {
  BITMAPINFO info = {};
  info.bmiHeader.biSize = sizeof info.bmiHeader;
  info.bmiHeader.biWidth = size;
  info.bmiHeader.biHeight = -size;
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  void* bits = nullptr;
  const HBITMAP bitmap = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
  auto* pixel = static_cast<std::uint32_t*>(bits);
  for (int i = 0; bitmap != nullptr && i < size * size; ++i) {
    *pixel++ = pixelOf(picture, i % size, i / size, size);
  }
  return bitmap;
}

}  // namespace

HIMAGELIST nodePictures(const Controls& controls, int size) {
  const HIMAGELIST list = controls.makeImageList(size, pictures);
  for (int picture = 1; list != nullptr && picture <= pictures; ++picture) {
    const HBITMAP bitmap = pictureOf(picture, size);
    controls.addImage(list, bitmap);
    DeleteObject(bitmap);
  }
  return list;
}

}  // namespace kob::win32
