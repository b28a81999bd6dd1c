#pragma once

#include <QBoxLayout>
#include <QGridLayout>
#include <QWidget>
#include <functional>
#include <vector>

#include "OrlinCustomDialogs/host/form.h"

namespace orlin {

/// The widget that shows a control, or that belongs to one in another way.
using WidgetOf = std::function<QWidget*(const shown::Control&)>;

/// Lays out the controls of one container: labels in one column, fields in another, everything else across both.
class FormLayout {
 public:
  /// `remarkOf` gives what stands below a field; null where nothing does.
  FormLayout(const Form& form, WidgetOf widgetOf, WidgetOf remarkOf)
      : form_(form), widgetOf_(std::move(widgetOf)), remarkOf_(std::move(remarkOf)) {}

  /// The whole window: the form, the row of buttons, the status line, the line with help.
  void LayOut(QWidget& window, QWidget& body, QWidget& help);

  /// Whether a window made larger has something to show in it.
  [[nodiscard]] bool Stretches() const noexcept { return stretches_; }

 private:
  void Fill(QWidget& container, const std::vector<FormRow>& rows);
  void AddRow(QGridLayout& grid, const FormRow& row);
  void AddField(QGridLayout& grid, const FormRow& row);
  void AddTall(QGridLayout& grid, const std::vector<const FormRow*>& columns);
  [[nodiscard]] QLayout* Column(const FormRow& row, int spacing);
  void AddLine(QBoxLayout& to, const FormLine& line, int stretch);
  [[nodiscard]] QLayout* Line(const FormLine& line, bool fills);
  void AddMarks(QGridLayout& grid, const std::vector<const FormRow*>& marks);
  void AlignFrames();

  const Form& form_;
  WidgetOf widgetOf_;
  WidgetOf remarkOf_;
  bool stretches_ = false;
  std::vector<QGridLayout*> frameGrids_;
};

}  // namespace orlin
