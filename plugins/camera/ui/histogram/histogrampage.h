// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHash>
#include <QPointer>
#include <QWidget>

class FieldSource;
class HistogramView;
class QFormLayout;
class QLabel;

/// The histogram of a source over the whole width, its numbers beside it. GUI thread.
class HistogramPage : public QWidget
{
    Q_OBJECT

public:
    /// `source` may be null, and may go before this object; then the page says `absentText`.
    HistogramPage(FieldSource *source, const QString &absentText, QWidget *parent = nullptr);

public slots:
    /// Shows the state of the source anew.
    void slotUpdate();

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    QLabel *NumberOf(const QString &key, const QString &text);

    QPointer<FieldSource> m_source;
    HistogramView *m_view;
    QFormLayout *m_numbers;
    QHash<QString, QLabel *> m_labels;
};
