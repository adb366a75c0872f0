// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/engine/HostObject.h>
#include <kobtraduction/model/KOBModeleTraduction.h>

#include <QPointer>
#include <QWidget>

#include <cstdint>
#include <optional>
#include <vector>

namespace kob::qt {

/// A left or width that applying a language has changed.
struct WrittenPlace {
  HostRef control;
  Property property;
  Value original;
  double written;
};

/// Applies languages to one form so that its geometry depends on the present language only: what the language
/// before has done to left and width is undone first, wherever nobody else has changed it since.
///
/// A window that grew because its layout needs more room for a language's texts gives that room back with the
/// next language. While a window is maximized, its width is nobody's to scale.
class FormGeometry {
 public:
  explicit FormGeometry(QWidget& form) : form_(&form) {}

  enum class Moment : std::uint8_t {
    Any,
    BeingShown,  ///< inside the form's show event: laid out, nothing painted yet
  };

  void apply(KOBModeleTraduction& model, std::int32_t langue, TextView module, Moment moment);

  /// What was written stays, as if it had always been so.
  void forget();

 private:
  struct OwnWidth {
    double original;
    double written;
  };

  void putBackControls();

  QPointer<QWidget> form_;
  /// In the order of writing.
  std::vector<WrittenPlace> places_;
  std::optional<OwnWidth> width_;
};

}  // namespace kob::qt
