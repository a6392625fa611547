// SPDX-License-Identifier: GPL-3.0-or-later
#include "spectrographscenario.h"
#include "spectrumpipeline.h"
#include "spectrumsettings.h"

#include <QAction>
#include <QMenu>
#include <QSet>

#include <cmath>
#include <numeric>

/// A person corrects a spectrum by the menu.
class CorrectionsMenuScenario : public SpectrographScenario
{
    Q_OBJECT

private slots:
    /// Each entry sets its own correction and no other, and says that it does.
    void theMenuSetsTheCorrections()
    {
        struct Step
        {
            const char *menu; ///< within Corrections; null for that itself
            const char *text;
            void (*change)(CorrectionSettings *);
        };
        const Step steps[] = {
            {nullptr, "Subtract Dark", [](CorrectionSettings *c) { c->subtractsDark = true; }},
            {nullptr, "Subtract Reference", [](CorrectionSettings *c) { c->subtractsReference = true; }},
            {nullptr, "Transmission", [](CorrectionSettings *c) { c->quantity = SpectrumQuantity::Transmission; }},
            {nullptr, "Absorbance", [](CorrectionSettings *c) { c->quantity = SpectrumQuantity::Absorbance; }},
            {nullptr, "Counts", [](CorrectionSettings *c) { c->quantity = SpectrumQuantity::Counts; }},
            {nullptr, "Remove Cosmic Rays", [](CorrectionSettings *c) { c->removesCosmicRays = true; }},
            {nullptr, "Remove Baseline", [](CorrectionSettings *c) { c->removesBaseline = true; }},
            {"Average", "16 Spectra", [](CorrectionSettings *c) { c->averaged = 16; }},
            {"Smooth", "9 Samples", [](CorrectionSettings *c) { c->smoothing = 9; }},
            {"Average", "Off", [](CorrectionSettings *c) { c->averaged = 1; }},
            {"Smooth", "Off", [](CorrectionSettings *c) { c->smoothing = 0; }},
            {nullptr, "Subtract Dark", [](CorrectionSettings *c) { c->subtractsDark = false; }},
            {nullptr, "Subtract Reference", [](CorrectionSettings *c) { c->subtractsReference = false; }},
            {nullptr, "Remove Cosmic Rays", [](CorrectionSettings *c) { c->removesCosmicRays = false; }},
            {nullptr, "Remove Baseline", [](CorrectionSettings *c) { c->removesBaseline = false; }},
        };
        const SpectrumSettings *settings = m_workbench->services.Spectrum();
        CorrectionSettings expected;
        QSet<QString> done;
        for (const Step &step : steps) {
            QAction *action = Correction(step.menu, step.text);
            QVERIFY2(action, step.text);
            action->trigger();
            step.change(&expected);
            QVERIFY2(settings->Recipe().corrections == expected, step.text);
            const QString name = QString("%1 %2").arg(step.menu, step.text);
            QVERIFY2(action->isChecked() == !done.contains(name), step.text); // the second time it is taken off
            done << name;
        }
        QVERIFY(settings->Recipe().corrections == CorrectionSettings());
    }

    void theMenuTakesDarkAndReference()
    {
        const QString none = "There is no spectrum yet: switch vertical binning on first.";
        for (const char *take : {"Take Dark Spectrum", "Take Reference Spectrum"}) {
            Correction(nullptr, take)->trigger();
            QTRY_COMPARE(m_workbench->StatusText(), none);
        }
        m_workbench->Action("Curve")->trigger();
        m_workbench->Action("All Rows")->trigger();
        QTRY_VERIFY_WITH_TIMEOUT(Spectra()->Shown().raw.Count() == 2048, waitMs);
        // What is left of the same lamp is its noise.
        const auto isTakenOff = [this] {
            const SpectrumProduct &product = Spectra()->Shown();
            const auto largest = [](const std::vector<double> &values) {
                return std::accumulate(values.begin(), values.end(), 0.0, [](double most, double v) { return std::max(most, std::abs(v)); });
            };
            return product.raw.Count() > 0 && largest(product.corrected.values) < 0.1 * largest(product.raw.values);
        };
        for (const QString &what : {QString("Dark"), QString("Reference")}) {
            QTRY_VERIFY_WITH_TIMEOUT(!isTakenOff(), waitMs);
            Correction(nullptr, "Subtract " + what)->trigger();
            Correction(nullptr, "Take " + what + " Spectrum")->trigger();
            QTRY_COMPARE(m_workbench->StatusText(), QString("The spectrum shown is the %1 spectrum now.").arg(what.toLower()));
            QTRY_VERIFY_WITH_TIMEOUT(isTakenOff(), waitMs);
            Correction(nullptr, "Subtract " + what)->trigger();
        }
    }

private:
    SpectrumPipeline *Spectra() const { return m_workbench->services.Spectra(); }

    /// An entry of the menu Corrections, or of a menu in it; null without one.
    QAction *Correction(const char *submenu, const QString &text) const
    {
        const auto find = [](const QMenu *menu, const QString &wanted) -> QAction * {
            for (QAction *action : menu->actions()) {
                if (action->text().remove('&') == wanted)
                    return action;
            }
            return nullptr;
        };
        const QMenu *menu = m_workbench->Action("Corrections")->menu();
        const QAction *within = submenu ? find(menu, submenu) : nullptr;
        return find(within ? within->menu() : menu, text);
    }
};

GUARDED_TEST_MAIN(CorrectionsMenuScenario)
#include "tst_correctionsmenu.moc"
