// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later

// The settings dialog with 30 pages of 12 fields against a plain dialog of a tree and a stack with the same
// pages, filled from the same store. "open" lasts from the call to the first picture, and includes reading
// all values; "click" lasts from the mouse button to the picture of the page.

#include "PYXBoundSettingsWidget.h"
#include "PYXSettings.h"
#include "PYXSettingsDialog.h"
#include "PYXXmlSettings.h"

#include <QtCore/QTemporaryDir>
#include <QtCore/QTimer>
#include <QtGui/QMouseEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QStackedWidget>
#include <QtWidgets/QTreeWidget>

#include <benchmark/benchmark.h>

namespace {

using namespace PYXRuntime;

constexpr int PageCount = 30;
constexpr int PagesPerCategory = 6;
constexpr int RowsPerPage = 4; // of three fields each

QString pageTitle(int page)
{
    return QStringLiteral("Page %1").arg(page, 2, 10, QLatin1Char('0'));
}

QString categoryTitle(int page)
{
    return QStringLiteral("Category %1").arg(page / PagesPerCategory);
}

/** The fields of one page, the same for both contestants. */
struct struFields
{
    struFields(QWidget *page, int number)
    {
        auto *const form = new QFormLayout(page);
        for (int row = 0; row < RowsPerPage; ++row) {
            const QString key = QStringLiteral("Page%1/Row%2/").arg(number).arg(row);
            lines.append({new QLineEdit, key + QLatin1String("Line")});
            spins.append({new QSpinBox, key + QLatin1String("Spin")});
            checks.append({new QCheckBox(QStringLiteral("Switch")), key + QLatin1String("Check")});
            form->addRow(QStringLiteral("Text"), lines.last().first);
            form->addRow(QStringLiteral("Number"), spins.last().first);
            form->addRow(checks.last().first);
        }
    }
    QVector<QPair<QLineEdit *, QString>> lines;
    QVector<QPair<QSpinBox *, QString>> spins;
    QVector<QPair<QCheckBox *, QString>> checks;
};

class BoundPage : public PYXBoundSettingsWidget
{
public:
    explicit BoundPage(int number)
        : fields(this, number)
    {
        setHeading(categoryTitle(number), pageTitle(number));
        for (const auto &field : qAsConst(fields.lines))
            binder().bind(field.first, field.second);
        for (const auto &field : qAsConst(fields.spins))
            binder().bind(field.first, field.second);
        for (const auto &field : qAsConst(fields.checks))
            binder().bind(field.first, field.second);
    }
    const struFields fields;
};

void fillStore(QSettings &store)
{
    for (int page = 0; page < PageCount; ++page) {
        for (int row = 0; row < RowsPerPage; ++row) {
            const QString key = QStringLiteral("Page%1/Row%2/").arg(page).arg(row);
            store.setValue(key + QLatin1String("Line"), QStringLiteral("text %1").arg(row));
            store.setValue(key + QLatin1String("Spin"), row);
            store.setValue(key + QLatin1String("Check"), row % 2 == 0);
        }
    }
}

/** Processes events until the window has been painted. */
class FirstPicture final : public QObject
{
public:
    explicit FirstPicture(QWidget &window) { window.installEventFilter(this); }
    void wait() const
    {
        while (!m_bPainted)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        m_bPainted = m_bPainted || event->type() == QEvent::Paint;
        return QObject::eventFilter(watched, event);
    }

private:
    bool m_bPainted = false;
};

struct PyxDialog
{
    PyxDialog()
        : settings(directory.filePath(QStringLiteral("user.PYXXml")), PYXXmlSettings::format())
        , defaults(directory.filePath(QStringLiteral("default.PYXXml")), PYXXmlSettings::format())
    {
        fillStore(settings);
        for (int page = 0; page < PageCount; ++page)
            dialog.registerSettingsHandler(new BoundPage(page));
    }
    /** Runs the dialog; the function is called when its first picture is there. */
    template <typename Function>
    void run(Function function)
    {
        const FirstPicture picture(dialog);
        QTimer::singleShot(0, &dialog, [&] {
            picture.wait();
            function();
            dialog.done(0);
        });
        dialog.exec(settings, defaults, settings, defaults);
    }
    QTreeWidget *tree() { return dialog.findChild<QTreeWidget *>(QStringLiteral("m_SettingsTree")); }

    QTemporaryDir directory;
    PYXSettings settings;
    PYXSettings defaults;
    PYXSettingsDialog dialog;
};

struct PlainDialog
{
    PlainDialog()
        : settings(directory.filePath(QStringLiteral("user.PYXXml")), PYXXmlSettings::format())
    {
        fillStore(settings);
        auto *const layout = new QHBoxLayout(&dialog);
        layout->addWidget(pages);
        layout->addWidget(&stack, 1);
        for (int number = 0; number < PageCount; ++number) {
            auto *const page = new QWidget;
            fields.append(struFields(page, number));
            stack.addWidget(page);
            if (number % PagesPerCategory == 0)
                new QTreeWidgetItem(pages, {categoryTitle(number)});
            QTreeWidgetItem *const category = pages->topLevelItem(number / PagesPerCategory);
            (new QTreeWidgetItem(category, {pageTitle(number)}))->setData(0, Qt::UserRole, number);
        }
        QObject::connect(pages, &QTreeWidget::currentItemChanged, &stack, [this](QTreeWidgetItem *item) {
            if (item != nullptr && item->parent() != nullptr)
                stack.setCurrentIndex(item->data(0, Qt::UserRole).toInt());
        });
        dialog.resize(800, 600);
    }
    template <typename Function>
    void run(Function function)
    {
        for (const struFields &page : qAsConst(fields))
            fill(page);
        const FirstPicture picture(dialog);
        QTimer::singleShot(0, &dialog, [&] {
            picture.wait();
            function();
            dialog.done(0);
        });
        dialog.exec();
    }
    void fill(const struFields &page)
    {
        for (const auto &field : page.lines)
            field.first->setText(settings.value(field.second).toString());
        for (const auto &field : page.spins)
            field.first->setValue(settings.value(field.second).toInt());
        for (const auto &field : page.checks)
            field.first->setChecked(settings.value(field.second).toBool());
    }
    QTreeWidget *tree() { return pages; }

    QTemporaryDir directory;
    QSettings settings;
    QDialog dialog;
    QTreeWidget *const pages = new QTreeWidget;
    QStackedWidget &stack = *new QStackedWidget;
    QVector<struFields> fields;
};

template <typename Dialog>
void open(benchmark::State &state)
{
    Dialog dialog;
    dialog.run([] {}); // the first time lays everything out
    for (auto _ : state)
        dialog.run([] {});
}

void click(QTreeWidget &tree, const QTreeWidgetItem &item)
{
    const QPointF place = tree.visualItemRect(&item).center();
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        QMouseEvent event(type, place, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(tree.viewport(), &event);
    }
}

template <typename Dialog>
void clickPages(benchmark::State &state)
{
    Dialog dialog;
    dialog.run([&] {
        QTreeWidget &tree = *dialog.tree();
        tree.expandAll();
        QCoreApplication::processEvents();
        QTreeWidgetItem *const category = tree.topLevelItem(0);
        int page = 0;
        for (auto _ : state) {
            page = (page + 1) % PagesPerCategory;
            click(tree, *category->child(page));
            QCoreApplication::processEvents(); // until it is painted
        }
        if (tree.currentItem() != category->child(page))
            state.SkipWithError("the click has not arrived");
    });
}

} // namespace

BENCHMARK_TEMPLATE(open, PyxDialog)->Name("dialog/open with 30 pages/PYXSettingsDialog");
BENCHMARK_TEMPLATE(open, PlainDialog)->Name("dialog/open with 30 pages/tree and stack");
BENCHMARK_TEMPLATE(clickPages, PyxDialog)->Name("dialog/click to page/PYXSettingsDialog");
BENCHMARK_TEMPLATE(clickPages, PlainDialog)->Name("dialog/click to page/tree and stack");

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
