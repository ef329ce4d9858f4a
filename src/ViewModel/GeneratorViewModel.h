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

#include <cstdint>
#include <optional>

/// The state behind the main window, for one run of the program: the settings, the secret they
/// yielded, and the secrets before it.
///
/// Every assignment to a property emits its signal, also where the value stays the same. All calls
/// belong on the user-interface thread.
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

    /// What the next `generate` uses.
    [[nodiscard]] const GeneratorSettings& settings() const { return m_settings; }
    /// Stores the settings and generates nothing: that is for whoever watches them.
    void setSettings(const GeneratorSettings& settings);

    /// The labels of all modes, in the order of their values.
    [[nodiscard]] static QStringList modeTitles();
    /// The index of the settings' mode in `modeTitles`.
    [[nodiscard]] int modeIndex() const;
    /// Changes the settings' mode to the one at `index` of `modeTitles`, which is in its range.
    void setModeIndex(int index);
    /// Whether the settings' mode is `passphrase`.
    [[nodiscard]] bool isPassphrase() const;
    /// Shortens a separator of more than 3 grapheme clusters to the first 3, by a change of the
    /// settings of its own; does nothing to a shorter separator.
    Q_INVOKABLE void limitSeparator();

    /// The secret on show.
    [[nodiscard]] const QString& generated() const { return m_generated; }
    /// Whether `generated` has more than 38 grapheme clusters.
    [[nodiscard]] bool isLong() const;
    /// The estimated entropy of `generated`, in bits.
    [[nodiscard]] double entropy() const { return m_entropy; }
    /// The rating of `entropy`; it changes with it.
    [[nodiscard]] PasswordStrength strength() const;
    /// `strength` as a number from 0, the weakest, to 3.
    [[nodiscard]] int strengthLevel() const { return static_cast<int>(strength()); }
    /// The German word for `strength`.
    [[nodiscard]] QString strengthTitle() const { return title(strength()); }
    /// The name of the symbol for `strength`.
    [[nodiscard]] QString strengthSymbol() const { return systemImage(strength()); }
    /// The secrets of this run, newest first, at most 6. A repeat of the newest is not added.
    [[nodiscard]] const QStringList& history() const { return m_history; }

    /// The German message of the last generation, absent if it succeeded.
    [[nodiscard]] const std::optional<QString>& errorMessage() const { return m_errorMessage; }
    /// `errorMessage`, or the empty text.
    [[nodiscard]] QString errorText() const { return m_errorMessage.value_or(QString()); }
    /// Whether there is an error to show. Writing false takes the message back, and writing true
    /// does nothing: only a failed generation brings one up.
    [[nodiscard]] bool errorPresented() const { return m_errorMessage.has_value(); }
    void setErrorPresented(bool presented);

    /// Whether the confirmation of a copy is on show.
    [[nodiscard]] bool copied() const { return m_copied; }

    /// Draws a new secret by the current settings. On success sets `generated`, `entropy`,
    /// `errorMessage` and `history`, in this order. On failure sets `errorMessage` alone: the
    /// secret before it stays.
    Q_INVOKABLE void generate();

    /// Shows `value` again, rated by the current settings whatever it was made with. The history
    /// keeps its order.
    Q_INVOKABLE void useFromHistory(const QString& value);

    /// Puts `generated` on the clipboard, sets `copied` for 1.4 seconds, and has the clipboard
    /// emptied 30 seconds later, with or without this object, unless anybody wrote to it since.
    /// Does nothing while `generated` is empty. Copying again neither ends nor prolongs what an
    /// earlier copy has started.
    Q_INVOKABLE void copyToClipboard();

Q_SIGNALS:
    void settingsChanged();
    void generatedChanged();
    void entropyChanged();
    void historyChanged();
    void errorMessageChanged();
    void copiedChanged();

private:
    void setGenerated(QString value);
    void setErrorMessage(const std::optional<QString>& message);
    void setCopied(bool copied);
    void remember(const QString& value);
    void release(const QString& secret);
    void wipeReleased();

    GeneratorSettings m_settings;
    QString m_generated;
    double m_entropy = 0;
    QStringList m_history;
    /// What was let go of here, and is wiped once nobody else holds it any more.
    QStringList m_released;
    std::optional<QString> m_errorMessage;
    bool m_copied = false;
    /// The clipboard's change counter right after this object wrote to it last.
    std::int64_t m_clipboardRevision = 0;
    SecureGenerator m_generator;
    Q_DISABLE_COPY_MOVE(GeneratorViewModel)
};
