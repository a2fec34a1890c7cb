#pragma once

#include <QString>

// The per-user settings. They make nobody wait: what stands under their name and is no file, or is locked, is
// neither read nor changed.
namespace SettingsFile {

// Empty where there is none.
[[nodiscard]] QString Value(const QString& name);
void SetValue(const QString& name, const QString& value);

// The toolkit's dialogues have settings of their own, for all programs. Where these would make it wait, it uses others
// from now on. To be called before a dialogue for files.
void KeepToolkitFromWaiting();

} // namespace SettingsFile
