// SPDX-FileCopyrightText: The KOBTraduction authors
#pragma once

#include <kobtraduction/base/Text.h>
#include <kobtraduction/model/KOBModeleTraduction.h>
#include <kobtraductionqt/Export.h>

#include <QObject>
#include <QString>

#include <cstdint>
#include <memory>

class QWidget;

namespace kob::qt {

/// Shows an application's forms in one language at a time, and switches it at run time. It applies the
/// language to every registered form at once, and to forms as they are first shown.
///
/// The engine scales left and width by what they are now, so applying twice scales twice. The switcher
/// remembers what each form's left and width were before the first language, and puts a value back before it
/// applies the next one where the control still has the value that the switcher last wrote: going from A to B
/// and back to A is the identity. What the application or the user changed since is left as it is.
///
/// The model is borrowed and must outlive the switcher; forms may be deleted at any time. GUI thread only.
class KOB_QT_EXPORT LanguageSwitcher final : public QObject {
  Q_OBJECT

 public:
  explicit LanguageSwitcher(KOBModeleTraduction& model, QObject* parent = nullptr);
  ~LanguageSwitcher() override;

  /// Registers a form (its cells stand below `module` when that is not empty) and shows it in the present
  /// language.
  void addForm(QWidget* form, const QString& module = {});
  /// Forgets a form; its texts and geometry stay as they are.
  void removeForm(QWidget* form);

  /// From now on every window of the application is registered when it is first shown, below `module`: before
  /// it is painted, so that the reference language never flickers. Windows that are visible already are
  /// registered now. Pop-ups, menus, tool tips, floating dock widgets and tool bars, and the component's own
  /// message boxes are no windows in this sense; a window that was registered otherwise keeps its module, and
  /// one that was removed stays out.
  void watchApplication(const QString& module = {});

  /// The language shown; 1, the reference language, at first.
  std::int32_t language() const noexcept;
  /// Applies a language to every registered form. A number outside 1..language count is ignored.
  void setLanguage(std::int32_t langue);
  /// Applies the present language again, after texts of the model were edited.
  void refresh();

 Q_SIGNALS:
  /// After every registered form shows the new language.
  void languageChanged(int langue);

 private:
  bool eventFilter(QObject* watched, QEvent* event) override;

  class Private;
  std::unique_ptr<Private> d_;
};

}  // namespace kob::qt
