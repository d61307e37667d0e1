#include "ui/common/QtLocalisation.h"

#include <QAbstractItemView>
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QTableWidget>
#include <QToolBar>
#include <QToolButton>
#include <QTreeWidget>

#include <memory>
#include <vector>

#include "ui/common/TextConversion.h"

namespace nomra::ui {

namespace {

using lang::ControlKind;
using lang::LocalisableControl;

class ActionControl final : public LocalisableControl {
 public:
  explicit ActionControl(QAction& action) : action_(action) {}
  ControlKind Kind() const override { return ControlKind::Menu; }
  std::string Name() const override { return ToEngineText(ControlName(action_)); }
  std::string Tag() const override { return ToEngineText(action_.property(kTagProperty).toString()); }
  void SetCaption(const std::string& text) override { action_.setText(ToQString(text)); }

 private:
  QAction& action_;
};

class WidgetControl final : public LocalisableControl {
 public:
  explicit WidgetControl(QWidget& widget) : widget_(widget) {}

  ControlKind Kind() const override {
    if (qobject_cast<QPushButton*>(&widget_)) return ControlKind::CommandButton;
    if (qobject_cast<QComboBox*>(&widget_)) return ControlKind::ComboBox;
    if (qobject_cast<QListWidget*>(&widget_)) return ControlKind::ListBox;
    if (qobject_cast<QAbstractItemView*>(&widget_)) return ControlKind::ListView;
    if (qobject_cast<QTabBar*>(&widget_)) return ControlKind::TabStrip;
    if (qobject_cast<QToolBar*>(&widget_)) return ControlKind::Toolbar;
    return ControlKind::Other;
  }
  std::string Name() const override { return ToEngineText(ControlName(widget_)); }
  std::string Tag() const override { return ToEngineText(widget_.property(kTagProperty).toString()); }

  bool IsGraphicalWithoutCaption() const override {
    auto* button = qobject_cast<QPushButton*>(&widget_);
    return button != nullptr && button->text().isEmpty() && !button->icon().isNull();
  }

  void SetCaption(const std::string& text) override {
    const QString caption = ToQString(text);
    if (auto* label = qobject_cast<QLabel*>(&widget_)) {
      label->setText(caption);
    } else if (auto* button = qobject_cast<QAbstractButton*>(&widget_)) {
      button->setText(caption);
    } else if (auto* group = qobject_cast<QGroupBox*>(&widget_)) {
      group->setTitle(caption);
    }
    // Other widgets have no caption; setting one is not an error.
  }
  void SetToolTip(const std::string& text) override { widget_.setToolTip(ToQString(text)); }

  std::vector<std::string> HeaderTags() const override {
    std::vector<std::string> tags;
    for (const QString& tag : widget_.property(kHeaderTagsProperty).toStringList()) tags.push_back(ToEngineText(tag));
    return tags;
  }
  void SetHeaderText(int index, const std::string& text) override {
    if (auto* tree = qobject_cast<QTreeWidget*>(&widget_)) {
      tree->headerItem()->setText(index, ToQString(text));
    } else if (auto* table = qobject_cast<QTableWidget*>(&widget_)) {
      auto* item = table->horizontalHeaderItem(index);
      if (item == nullptr) table->setHorizontalHeaderItem(index, item = new QTableWidgetItem);
      item->setText(ToQString(text));
    } else if (auto* view = qobject_cast<QAbstractItemView*>(&widget_)) {
      if (view->model() != nullptr) view->model()->setHeaderData(index, Qt::Horizontal, ToQString(text));
    }
  }

  std::vector<lang::ToolbarButton> Buttons() const override {
    std::vector<lang::ToolbarButton> buttons;
    auto* bar = qobject_cast<QToolBar*>(&widget_);
    if (bar == nullptr) return buttons;
    for (QAction* action : ToolActions()) {
      lang::ToolbarButton button;
      button.key = ToEngineText(action->property(kKeyProperty).toString());
      button.style = action->isSeparator() ? lang::kButtonStyleSeparator : action->property(kStyleProperty).toInt();
      if (action->menu() != nullptr) {
        for (QAction* entry : action->menu()->actions()) {
          button.entryKeys.push_back(ToEngineText(entry->property(kKeyProperty).toString()));
        }
      }
      buttons.push_back(std::move(button));
    }
    return buttons;
  }
  void SetButtonToolTip(int button, const std::string& text) override {
    const auto actions = ToolActions();
    if (button >= 0 && button < actions.size()) actions[button]->setToolTip(ToQString(text));
  }
  void SetEntryText(int button, int entry, const std::string& text) override {
    const auto actions = ToolActions();
    if (button < 0 || button >= actions.size() || actions[button]->menu() == nullptr) return;
    const auto entries = actions[button]->menu()->actions();
    if (entry >= 0 && entry < entries.size()) entries[entry]->setText(ToQString(text));
  }

  std::vector<std::string> TabKeys() const override {
    std::vector<std::string> keys;
    if (auto* tabs = qobject_cast<QTabBar*>(&widget_)) {
      for (int i = 0; i < tabs->count(); ++i) keys.push_back(ToEngineText(tabs->tabData(i).toString()));
    }
    return keys;
  }
  void SetTabCaption(int tab, const std::string& text) override {
    if (auto* tabs = qobject_cast<QTabBar*>(&widget_)) tabs->setTabText(tab, ToQString(text));
  }

  void ReplaceRows(const std::vector<std::string>& rows) override {
    if (auto* combo = qobject_cast<QComboBox*>(&widget_)) {
      combo->clear();
      for (const std::string& row : rows) combo->addItem(ToQString(row));
      combo->setCurrentIndex(rows.empty() ? -1 : 0);
    } else if (auto* list = qobject_cast<QListWidget*>(&widget_)) {
      list->clear();
      for (const std::string& row : rows) list->addItem(ToQString(row));
      if (!rows.empty()) list->setCurrentRow(0);
    }
  }

 private:
  // Only the buttons that carry a key: the widgets placed on a bar are not buttons.
  QList<QAction*> ToolActions() const {
    QList<QAction*> actions;
    for (QAction* action : widget_.actions()) {
      if (action->isSeparator() || action->property(kKeyProperty).isValid()) actions << action;
    }
    return actions;
  }

  QWidget& widget_;
};

class WidgetForm final : public lang::LocalisableForm {
 public:
  explicit WidgetForm(QWidget& form) : form_(form) {}

  std::string Name() const override { return ToEngineText(form_.objectName()); }

  void ForEachControl(const std::function<void(LocalisableControl&)>& visit) override {
    std::vector<std::unique_ptr<LocalisableControl>> controls;
    for (QWidget* widget : form_.findChildren<QWidget*>()) {
      if (widget->objectName().isEmpty() || widget->objectName().startsWith(QLatin1String("qt_"))) continue;
      controls.push_back(std::make_unique<WidgetControl>(*widget));
    }
    for (QAction* action : form_.findChildren<QAction*>()) {
      if (action->objectName().startsWith(QLatin1String(kMenuEntryPrefix)))
        controls.push_back(std::make_unique<ActionControl>(*action));
    }
    for (auto& control : controls) visit(*control);
  }

  void SetCaption(const std::string& text) override { form_.setWindowTitle(ToQString(text)); }

 private:
  QWidget& form_;
};

}  // namespace

QString ControlName(const QObject& object) {
  const QString name = object.objectName();
  const int bracket = name.indexOf(QLatin1Char('('));
  return bracket > 0 && name.endsWith(QLatin1Char(')')) ? name.left(bracket) : name;
}

QString ControlArrayMember(const QString& array, int index) {
  return array + QLatin1Char('(') + QString::number(index) + QLatin1Char(')');
}

void LocaliseWidget(QWidget& form, const QString& section, const lang::MessageCatalog& catalog,
                    const lang::CaptionSources& sources) {
  WidgetForm adapter(form);
  lang::LocaliseForm(adapter, ToEngineText(section), catalog, sources);
}

}  // namespace nomra::ui
