// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

#include "Model/GeneratorSettings.h"
#include "Model/PasswordStrength.h"
#include "Services/SecureGenerator.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

#include <optional>

/// The state of the main window: the settings, the displayed secret and the earlier secrets
/// of this run of the program.
///
/// Every assignment to a property emits its signal, also if the value stays the same. A secret that
/// is neither displayed nor in the history is overwritten when control returns to the event loop;
/// while a view still uses the secret, it is overwritten after the next change of `generated`. Used
/// only on the main thread.
class GeneratorViewModel : public QObject
{
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(
        GeneratorSettings settings READ settings WRITE setSettings NOTIFY settingsChanged FINAL)
    Q_PROPERTY(QList<QString> modeTitles READ modeTitles CONSTANT FINAL)
    Q_PROPERTY(int modeIndex READ modeIndex WRITE setModeIndex NOTIFY settingsChanged FINAL)
    Q_PROPERTY(bool isPassphrase READ isPassphrase NOTIFY settingsChanged FINAL)
    Q_PROPERTY(QString generated READ generated NOTIFY generatedChanged FINAL)
    Q_PROPERTY(bool isLong READ isLong NOTIFY generatedChanged FINAL)
    Q_PROPERTY(double entropy READ entropy NOTIFY entropyChanged FINAL)
    Q_PROPERTY(int strengthLevel READ strengthLevel NOTIFY entropyChanged FINAL)
    Q_PROPERTY(QString strengthTitle READ strengthTitle NOTIFY entropyChanged FINAL)
    Q_PROPERTY(QString strengthSymbol READ strengthSymbol NOTIFY entropyChanged FINAL)
    Q_PROPERTY(QList<QString> history READ history NOTIFY historyChanged FINAL)
    Q_PROPERTY(QString errorMessage READ errorText NOTIFY errorMessageChanged FINAL)
    Q_PROPERTY(bool errorPresented READ errorPresented WRITE setErrorPresented NOTIFY
                   errorMessageChanged FINAL)
    Q_PROPERTY(bool copied READ copied NOTIFY copiedChanged FINAL)

public:
    /// Starts with a length of 10 and a first secret.
    explicit GeneratorViewModel(QObject* parent = nullptr);
    ~GeneratorViewModel() override;

    /// The settings that the next `generate` uses.
    [[nodiscard]] const GeneratorSettings& settings() const { return m_settings; }
    /// Stores the settings without generating a secret. The settings panel calls `generate`.
    void setSettings(const GeneratorSettings& settings);

    /// The labels of all modes, in the order of `allGeneratorModes`.
    [[nodiscard]] static QStringList modeTitles();
    /// The index of the settings' mode in `modeTitles`.
    [[nodiscard]] int modeIndex() const { return static_cast<int>(m_settings.mode); }
    /// Changes the settings' mode to the mode at the valid `index` of `allGeneratorModes`.
    void setModeIndex(int index);
    /// Whether the settings' mode is `passphrase`.
    [[nodiscard]] bool isPassphrase() const { return m_settings.mode == GeneratorMode::passphrase; }
    /// Shortens a separator of more than 3 grapheme clusters to the first 3. The shortening is a
    /// second change of the settings, so an observer sees the long separator and the short one.
    Q_INVOKABLE void limitSeparator();

    /// The displayed secret.
    [[nodiscard]] const QString& generated() const { return m_generated; }
    /// Whether `generated` has more than 38 grapheme clusters.
    [[nodiscard]] bool isLong() const;
    /// The estimated entropy of `generated`, in bits.
    [[nodiscard]] double entropy() const { return m_entropy; }
    /// The rating of `entropy`.
    [[nodiscard]] PasswordStrength strength() const { return m_generator.strength(m_entropy); }
    /// `strength` as a number from 0, the weakest, to 3.
    [[nodiscard]] int strengthLevel() const { return static_cast<int>(strength()); }
    /// The German word for `strength`.
    [[nodiscard]] QString strengthTitle() const { return title(strength()); }
    /// The name of the symbol for `strength`.
    [[nodiscard]] QString strengthSymbol() const { return systemImage(strength()); }
    /// The secrets of this run, newest first, at most 6. A secret equal to the newest is not added.
    [[nodiscard]] const QStringList& history() const { return m_history; }

    /// The German error message of the last generation; absent after success or dismissal.
    [[nodiscard]] const std::optional<QString>& errorMessage() const { return m_errorMessage; }
    /// `errorMessage`, or the empty text.
    [[nodiscard]] QString errorText() const { return m_errorMessage.value_or(QString()); }
    /// Whether there is an `errorMessage`. Setting false removes the message; setting true does
    /// nothing, because only a failed generation has a message.
    [[nodiscard]] bool errorPresented() const { return m_errorMessage.has_value(); }
    void setErrorPresented(bool presented);

    /// Whether the confirmation of a copy is displayed.
    [[nodiscard]] bool copied() const { return m_copied; }

    /// Generates a secret with the current settings. On success sets `generated`, `entropy`,
    /// `errorMessage` and `history`, in this order. On failure sets only `errorMessage` and keeps
    /// the previous secret.
    Q_INVOKABLE void generate();

    /// Makes `secret` the displayed secret and estimates its entropy with the current settings. The
    /// history keeps its order.
    Q_INVOKABLE void useFromHistory(const QString& secret);

    /// Writes `generated` to the clipboard and sets `copied` for 1.4 seconds. Empties the clipboard
    /// after 30 seconds, also if this object no longer exists, unless the clipboard has changed
    /// meanwhile. Does nothing if `generated` is empty. A further copy does not change the times of
    /// an earlier copy.
    Q_INVOKABLE void copyToClipboard();

Q_SIGNALS:
    void settingsChanged();
    void generatedChanged();
    void entropyChanged();
    void historyChanged();
    void errorMessageChanged();
    void copiedChanged();

private:
    void setGenerated(QString secret);
    void setErrorMessage(const std::optional<QString>& message);
    void setCopied(bool copied);
    void remember(const QString& secret);
    void release(const QString& secret);
    void scheduleWiping();
    void wipeReleased();

    GeneratorSettings m_settings;
    QString m_generated;
    double m_entropy = 0;
    QStringList m_history;
    /// Replaced and dropped secrets, which are wiped once no other QString shares their characters.
    QStringList m_released;
    std::optional<QString> m_errorMessage;
    bool m_copied = false;
    bool m_isWipingScheduled = false;
    SecureGenerator m_generator;
    Q_DISABLE_COPY_MOVE(GeneratorViewModel)
};
