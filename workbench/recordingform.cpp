// SPDX-License-Identifier: GPL-3.0-or-later
#include "recordingform.h"

#include "runwriter.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>

namespace {

constexpr double MsPerSecond = 1000.0;
constexpr int MsPerMinute = 60000;

QDoubleSpinBox *SecondsBox(QWidget *parent, const char *name, double most, const QString &zeroText)
{
    auto *box = new QDoubleSpinBox(parent);
    box->setObjectName(name);
    box->setRange(0, most);
    box->setDecimals(3);
    box->setSuffix(RecordingForm::tr(" s"));
    box->setSpecialValueText(zeroText);
    return box;
}

} // namespace

RecordingForm::RecordingForm(QWidget *parent)
    : QWidget(parent)
    , m_mode(new QComboBox(this))
    , m_frames(AddNumber("spinBoxFrames", 1, RecordingSettings::MostFrames, tr(" frames")))
    , m_seconds(AddNumber("spinBoxSeconds", 1, RecordingSettings::MostSeconds, tr(" s")))
    , m_delay(SecondsBox(this, "doubleSpinBoxDelay", RecordingSettings::MostDelayMinutes * 60.0, tr("none")))
    , m_interval(SecondsBox(this, "doubleSpinBoxInterval", RecordingSettings::LongestIntervalMs / MsPerSecond,
                            tr("every frame")))
    , m_target(new QComboBox(this))
    , m_format(new QComboBox(this))
    , m_folder(new QLineEdit(this))
    , m_pattern(new QLineEdit(this))
    , m_name(new QLabel(this))
    , m_queue(AddNumber("spinBoxQueue", RecordingSettings::LeastQueueMB, RecordingSettings::MostQueueMB,
                        tr(" MB")))
{
    BuildForm();
    for (QComboBox *box : { m_mode, m_target, m_format })
        connect(box, SIGNAL(currentIndexChanged(int)), this, SLOT(slotChanged()));
    for (QSpinBox *box : { m_frames, m_seconds, m_queue })
        connect(box, SIGNAL(valueChanged(int)), this, SLOT(slotChanged()));
    for (QDoubleSpinBox *box : { m_delay, m_interval })
        connect(box, SIGNAL(valueChanged(double)), this, SLOT(slotChanged()));
    for (QLineEdit *edit : { m_folder, m_pattern })
        connect(edit, SIGNAL(textChanged(QString)), this, SLOT(slotChanged()));
    Set(RecordingSettings());
}

QSpinBox *RecordingForm::AddNumber(const char *name, int least, int most, const QString &suffix)
{
    auto *box = new QSpinBox(this);
    box->setObjectName(name);
    box->setRange(least, most);
    box->setSuffix(suffix);
    return box;
}

void RecordingForm::BuildForm()
{
    m_mode->setObjectName("comboBoxMode");
    m_mode->addItems({ tr("One frame"), tr("Number of frames"), tr("Duration"), tr("Until stopped") });
    m_target->setObjectName("comboBoxTarget");
    m_target->addItems({ tr("To disk"), tr("To memory, then to disk") });
    m_format->setObjectName("comboBoxFormat");
    m_format->addItems({ tr("TIFF"), tr("FITS cube"), tr("PNG sequence") });
    m_folder->setObjectName("lineEditFolder");
    m_pattern->setObjectName("lineEditPattern");
    m_pattern->setToolTip(
        tr("{camera}, {date}, {time}, {exposure}, {gain}, {number} and {number:4} are filled in."));
    m_name->setObjectName("labelName");
    m_name->setWordWrap(true);
    m_folder->setMinimumWidth(fontMetrics().averageCharWidth() * 40);
    m_queue->setToolTip(tr("Memory for frames that wait while the disk is busy."));

    auto *folderRow = new QHBoxLayout;
    folderRow->addWidget(m_folder);
    auto *choose = new QPushButton(tr("Choose…"), this);
    choose->setObjectName("pushButtonFolder");
    connect(choose, SIGNAL(clicked()), this, SLOT(slotChooseFolder()));
    folderRow->addWidget(choose);

    auto *form = new QFormLayout(this);
    form->addRow(tr("&Record"), m_mode);
    form->addRow(tr("F&rames"), m_frames);
    form->addRow(tr("&Time"), m_seconds);
    form->addRow(tr("&Delay before it"), m_delay);
    form->addRow(tr("&Interval"), m_interval);
    form->addRow(tr("&Save"), m_target);
    form->addRow(tr("F&ormat"), m_format);
    form->addRow(tr("Fo&lder"), folderRow);
    form->addRow(tr("&Name"), m_pattern);
    form->addRow(QString(), m_name);
    form->addRow(tr("&Waiting frames"), m_queue);
}

void RecordingForm::Set(const RecordingSettings &settings)
{
    const QSignalBlocker blocker(this);
    m_mode->setCurrentIndex(int(settings.mode));
    m_frames->setValue(settings.frames);
    m_seconds->setValue(settings.seconds);
    m_delay->setValue(double(settings.DelayMs()) / MsPerSecond);
    m_interval->setValue(settings.intervalMs / MsPerSecond);
    m_target->setCurrentIndex(settings.toRam ? 1 : 0);
    m_format->setCurrentIndex(int(settings.format));
    m_folder->setText(settings.Folder());
    m_pattern->setText(settings.pattern);
    m_queue->setValue(settings.queueMB);
    UpdateUI();
}

RecordingSettings RecordingForm::Get() const
{
    RecordingSettings settings;
    settings.mode = RecordingSettings::Mode(m_mode->currentIndex());
    settings.frames = m_frames->value();
    settings.seconds = m_seconds->value();
    const int delayMs = qRound(m_delay->value() * MsPerSecond);
    settings.delay.minutes = delayMs / MsPerMinute;
    settings.delay.seconds = delayMs % MsPerMinute / 1000;
    settings.delay.milliseconds = delayMs % 1000;
    settings.intervalMs = qRound(m_interval->value() * MsPerSecond);
    settings.toRam = m_target->currentIndex() == 1;
    settings.format = RunFormat(m_format->currentIndex());
    settings.folder = m_folder->text();
    settings.pattern = m_pattern->text();
    settings.queueMB = m_queue->value();
    return settings;
}

void RecordingForm::SetExample(const NamePattern::Values &values)
{
    m_example = values;
    UpdateUI();
}

bool RecordingForm::IsValid() const
{
    return NamePattern(m_pattern->text()).Fault().isEmpty() && !m_folder->text().trimmed().isEmpty();
}

void RecordingForm::slotChanged()
{
    UpdateUI();
    emit signalChanged();
}

void RecordingForm::UpdateUI()
{
    const auto mode = RecordingSettings::Mode(m_mode->currentIndex());
    m_frames->setEnabled(mode == RecordingSettings::Mode::Count);
    m_seconds->setEnabled(mode == RecordingSettings::Mode::Duration);
    m_interval->setEnabled(mode != RecordingSettings::Mode::Single);
    const NamePattern pattern(m_pattern->text());
    m_name->setText(pattern.Fault().isEmpty()
                        ? pattern.Name(m_example, 1) + '.' + RunSuffix(RunFormat(m_format->currentIndex()))
                        : pattern.Fault());
}

void RecordingForm::slotChooseFolder()
{
    const QString folder =
        QFileDialog::getExistingDirectory(this, tr("Folder for Recordings"), m_folder->text());
    if (!folder.isEmpty())
        m_folder->setText(folder);
}
