// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#include "SheetWindow.h"

#include "SheetView.h"

#include <PYXStandardIcons.h>

#include <QtWidgets/QComboBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QScrollArea>

using PYXRuntime::PYXStandardIcons;

namespace IconSheet {

SheetWindow::SheetWindow(const QVector<struIconEntry> &entries, QWidget *parent)
    : QWidget(parent)
    , m_entries(entries)
    , m_view(new SheetView)
    , m_filterEdit(new QLineEdit)
    , m_groundBox(new QComboBox)
    , m_countLabel(new QLabel)
{
    setWindowTitle(tr("Icon Sheet"));
    setWindowIcon(PYXStandardIcons::staticRegisteredIcon(PYXStandardIcons::ekIcon_Application_Icon));
    auto *const scrollArea = new QScrollArea;
    scrollArea->setWidgetResizable(true);
    scrollArea->setWidget(m_view);
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(_createBar());
    layout->addWidget(scrollArea);
    resize(1080, 720);
    _sl_filterEdit_textChanged({});
}

void SheetWindow::setFilter(const QString &filter)
{
    m_filterEdit->setText(filter);
}

void SheetWindow::setGround(eGround ground)
{
    m_groundBox->setCurrentIndex(m_groundBox->findData(ground));
    m_view->setGround(ground);
}

QWidget *SheetWindow::_createBar()
{
    m_filterEdit->setPlaceholderText(tr("Filter by name"));
    m_filterEdit->setAccessibleName(tr("Filter by name"));
    m_filterEdit->setClearButtonEnabled(true);
    connect(m_filterEdit, &QLineEdit::textChanged, this, &SheetWindow::_sl_filterEdit_textChanged);
    m_groundBox->addItem(tr("Light and dark"), ekGround_Both);
    m_groundBox->addItem(tr("Light"), ekGround_Light);
    m_groundBox->addItem(tr("Dark"), ekGround_Dark);
    m_groundBox->setAccessibleName(tr("Ground"));
    connect(m_groundBox, QOverload<int>::of(&QComboBox::activated), this,
            &SheetWindow::_sl_groundBox_activated);
    auto *const bar = new QWidget;
    auto *const layout = new QHBoxLayout(bar);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_filterEdit, 1);
    layout->addWidget(m_groundBox);
    layout->addWidget(m_countLabel);
    return bar;
}

void SheetWindow::_sl_filterEdit_textChanged(const QString &a_text)
{
    const QVector<struIconEntry> matching = filtered(m_entries, a_text);
    m_view->setEntries(matching);
    m_countLabel->setText(tr("Images: %1").arg(matching.size()));
}

void SheetWindow::_sl_groundBox_activated(int a_index)
{
    m_view->setGround(eGround(m_groundBox->itemData(a_index).toInt()));
}

} // namespace IconSheet
