// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "servicesexport.h"

#include <QObject>

/// What the application is used for now, and which aids are shown for it.
class GLOBALUI_SERVICES_EXPORT UseAreaManager : public QObject
{
    Q_OBJECT

public:
    static UseAreaManager *GetInstance();
    ~UseAreaManager() override;

    /// The use-area type of spectroscopy.
    static constexpr int SpectrumUseArea = 1;

    virtual int GetUseAreaType() const = 0;
    virtual bool IsSpectrumHidden() const = 0;
    /// The spectrum page is present: the use area is spectrum and it is not hidden.
    bool IsSpectrumPagePresent() const;

    /// Rulers, intensity curves and colour bar around the spectrum image.
    virtual bool IsAxisVisible() const = 0;
    virtual bool IsCurveVisible() const = 0;
    virtual bool IsColorCardVisible() const = 0;
    /// Tool bar and information bar of the picture views.
    virtual bool IsToolBarVisible() const = 0;
    virtual bool IsInfoBarVisible() const = 0;

signals:
    void signalUpdateUseArea();
    void signalSpectrumUIUpdate();

protected:
    explicit UseAreaManager(QObject *parent = nullptr);
};
