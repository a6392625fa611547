// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFrame>

#include <array>

class QPushButton;

/// The narrow column of icon buttons that floats over a picture view; folds into a thin strip.
/// It only reports what the user wants: the stack that owns it does the rest, and places it again
/// after signalUpdatePos().
class ViewToolBar : public QFrame
{
    Q_OBJECT

public:
    /// `isCamera`: the bar of the live view, which can't save or crop.
    ViewToolBar(QWidget *parent, bool isCamera);

    void SetCloseCompareVisible(bool visible);
    void SetHorizontalMirrorVisible(bool visible);
    void SetVerticalMirrorVisible(bool visible);
    void SetRotateVisible(bool visible);
    void SetRotateEnabled(bool enabled);

public slots:
    void slotSetImageInfoButtonVisible(bool visible);

signals:
    /// `type` is a ZoomType.
    void signalSetZoomType(int type);
    /// `type` is a RotateType.
    void signalRotateImage(int type);
    void signalSaveAs();
    void signalCrop();
    void signalCloseCompare();
    void signalImageInfo();
    /// The bar has folded or unfolded.
    void signalUpdatePos();

private slots:
    void on_pushButtonShow_clicked();
    void on_pushButtonHide_clicked();
    void on_pushButtonZoomIn_clicked();
    void on_pushButtonZoomOut_clicked();
    void on_pushButton1vs1_clicked();
    void on_pushButtonFit_clicked();
    void on_pushButtonBlackBackground_clicked();
    void on_pushButtonFullScreen_clicked();
    void on_pushButtonHorizontalMirror_clicked();
    void on_pushButtonVerticalMirror_clicked();
    void on_pushButtonRotate90_clicked();
    void on_pushButtonSaveAs_clicked();
    void on_pushButtonCrop_clicked();
    void on_pushButtonImageInfo_clicked();
    void on_pushButtonCloseCompare_clicked();

private:
    enum Button {
        ShowBar,
        HideBar,
        ZoomIn,
        ZoomOut,
        Fit,
        OneToOne,
        BlackBackground,
        FullScreen,
        HorizontalMirror,
        VerticalMirror,
        Rotate90,
        SaveAs,
        Crop,
        ImageInfo,
        CloseCompare,
        ButtonCount
    };

    void BuildForm();
    void NameButtons();
    void SetShortcuts();
    void SetButtonVisible(Button button, bool visible);
    void SetFolded(bool folded);
    void UpdateHeight();

    QWidget *m_column = nullptr;
    std::array<QPushButton *, ButtonCount> m_buttons{};
};
