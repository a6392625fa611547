// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibrationmodel.h"
#include "calibrationtable.h"
#include "centredisplay.h"
#include "guardedtest.h"
#include "spectrumranges.h"
#include "spectrumsettings.h"

#include <QFile>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <cmath>
#include <memory>

namespace {
constexpr int Width = 1000;
}

/// The bottom page "Calibration Table" shows what was applied.
class CalibrationTableTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void init() override
    {
        StartGuard();
        m_folder = std::make_unique<QTemporaryDir>();
        m_stored = std::make_unique<QSettings>(m_folder->filePath("settings.ini"), QSettings::IniFormat);
        m_centre = std::make_unique<CentreDisplay>(m_stored.get());
        m_settings = std::make_unique<SpectrumSettings>(&m_ranges, m_centre.get());
        m_settings->slotSetFrameSize(QSize(Width, 100));
        m_model = std::make_unique<CalibrationModel>(m_settings.get(), m_stored.get());
        m_model->SetSpectrum(std::vector<double>(Width, 100.0)); // no peak to snap to
        m_model->SetDegree(1);
        m_table = std::make_unique<CalibrationTable>(m_model.get());
    }

    void cleanup() override
    {
        m_table.reset();
        m_model.reset();
        m_settings.reset();
        m_centre.reset();
        m_stored.reset();
        m_folder.reset();
        EndGuard();
    }

    void emptyUntilOneIsApplied()
    {
        AddPoints();
        QCOMPARE(m_table->Table()->rowCount(), 0);
        QVERIFY(m_table->TableNote().startsWith("Not calibrated"));
    }

    void showsLinesAndResiduals()
    {
        QSignalSpy changes(m_table.get(), SIGNAL(signalChanged()));
        AddPoints();
        QVERIFY(m_model->Apply());
        QVERIFY(changes.count() > 0);
        QCOMPARE(m_table->Table()->rowCount(), 3);
        QCOMPARE(Number(0, 0), 100.0);
        QCOMPARE(Number(0, 1), 700.0);
        QCOMPARE(Number(2, 0), 900.0);
        // The point in the middle lies 0.3 nm, which are 1.5 pixels, above the line of the others. Least squares leave it two
        // thirds of that and each of the others one third on the other side.
        QVERIFY2(qAbs(Number(0, 3) - 0.5) < 0.01, qPrintable(QString::number(Number(0, 3))));
        QVERIFY2(qAbs(Number(1, 3) + 1.0) < 0.01, qPrintable(QString::number(Number(1, 3))));
        QVERIFY2(qAbs(Number(2, 3) - 0.5) < 0.01, qPrintable(QString::number(Number(2, 3))));
    }

    void emptyAgainWhenItIsTakenAway()
    {
        AddPoints();
        QVERIFY(m_model->Apply());
        m_model->TakeAway();
        QCOMPARE(m_table->Table()->rowCount(), 0);
    }

    void tableOfTheLastStartIsThere()
    {
        AddPoints();
        QVERIFY(m_model->Apply());
        m_table.reset();
        m_model = std::make_unique<CalibrationModel>(m_settings.get(), m_stored.get());
        m_table = std::make_unique<CalibrationTable>(m_model.get());
        QCOMPARE(m_table->Table()->rowCount(), 3);
    }

    void savedAsCsv()
    {
        AddPoints();
        QVERIFY(m_model->Apply());
        const QString path = m_folder->filePath("table\n1.csv");
        QSignalSpy messages(m_table.get(), SIGNAL(signalMessage(QString)));
        m_table->Set("saveTable", path);
        QTRY_COMPARE(messages.count(), 1);
        QCOMPARE(messages.at(0).at(0).toString(), QString("\u201ctable\u23ce1.csv\u201d was saved."));
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QList<QByteArray> lines = file.readAll().trimmed().split('\n');
        QCOMPARE(lines.size(), 4);
        QCOMPARE(lines.at(0), QByteArray("pixel,wavelength [nm],lamp,residual [pixel]"));
        QCOMPARE(lines.at(1).split(',').at(1).toDouble(), 700.0);
    }

    void linesOfSaturatedPeaksSaySo()
    {
        std::vector<double> samples(Width, 100);
        std::vector<quint8> saturated(Width, 0);
        for (int i = -6; i <= 6; ++i)
            samples[size_t(400 + i)] += std::floor(50000 * std::exp(-0.5 * i * i / 4.0));
        saturated[400] = 1;
        m_model->SetSpectrum(samples, saturated);
        m_model->AddPoint(400, 777.123); // of no list
        m_model->AddPoint(900, 860);
        QVERIFY(m_model->Apply());
        QCOMPARE(m_table->Table()->index(0, 2).data().toString(), QString("saturated"));
        const QString path = m_folder->filePath("table.csv");
        QSignalSpy messages(m_table.get(), SIGNAL(signalMessage(QString)));
        m_table->Set("saveTable", path);
        QTRY_COMPARE(messages.count(), 1);
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll().split('\n').at(1).split(',').at(2), QByteArray("saturated"));
    }

    void saysWhatCannotBeSaved()
    {
        QSignalSpy messages(m_table.get(), SIGNAL(signalMessage(QString)));
        QSignalSpy faults(m_table.get(), SIGNAL(signalNotSaved(QString)));
        m_table->Set("saveTable", m_folder->filePath("no/such/folder/table.csv"));
        QTRY_COMPARE(faults.count(), 1);
        QVERIFY(faults.at(0).at(0).toString().contains("table.csv"));
        QVERIFY(faults.at(0).at(0).toString().contains("not saved"));
        QCOMPARE(messages.count(), 0);
    }

private:
    /// On a line of 0.2 nm a pixel but for the one in the middle, 0.3 nm beside it; far from any lamp's line.
    void AddPoints()
    {
        m_model->SetLamps({});
        m_model->AddPoint(100, 700);
        m_model->AddPoint(500, 780.3);
        m_model->AddPoint(900, 860);
    }

    double Number(int row, int column) const
    {
        return m_table->Table()->index(row, column).data(Qt::UserRole).toDouble();
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<QSettings> m_stored;
    SpectrumRanges m_ranges;
    std::unique_ptr<CentreDisplay> m_centre;
    std::unique_ptr<SpectrumSettings> m_settings;
    std::unique_ptr<CalibrationModel> m_model;
    std::unique_ptr<CalibrationTable> m_table;
};

GUARDED_TEST_MAIN(CalibrationTableTest)
#include "calibrationtabletest.moc"
