#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <utility>
#include <vector>

// Folders that the user browsed to for icons, the one used last first.
class RememberedFolders {
  public:
    static constexpr std::size_t kMost = 5;

    RememberedFolders() = default;
    // From values as they are stored: a number from 1 on, which is the place, and a folder. Values
    // with other names, empty folders and what lies beyond the fifth place do not count, nor does a
    // folder that was there before.
    explicit RememberedFolders(std::vector<std::pair<std::wstring, std::wstring>> values);

    const std::vector<std::wstring>& folders() const { return folders_; }
    // To the front; what then lies beyond the fifth place is forgotten.
    void Add(const std::wstring& folder);

  private:
    std::vector<std::wstring> folders_;
};

// What the icon chooser can show: 0 all sources, then the fixed ones, then the remembered folders.
class IconSources {
  public:
    IconSources(std::vector<std::wstring> fixed, RememberedFolders remembered)
        : fixed_(std::move(fixed)), remembered_(std::move(remembered)) {}

    const std::vector<std::wstring>& fixed() const { return fixed_; }
    const RememberedFolders& remembered() const { return remembered_; }
    // The source shown now; none before the first.
    std::optional<int> shown() const { return shown_; }

    // Shows a source and returns the folders to load, in order. A remembered folder moves to the
    // front. A number without a source shows all at first, and changes nothing (no value) later.
    std::optional<std::vector<std::wstring>> Show(int source);
    // Remembers a folder and shows it.
    std::vector<std::wstring> ShowFolder(const std::wstring& folder);

  private:
    std::vector<std::wstring> fixed_;
    RememberedFolders remembered_;
    std::optional<int> shown_;
};
