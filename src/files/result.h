// What reading a file gives: the value, or the reason why there is none.
//
//     Result<std::vector<Item>> items = ReadItems(folder, "data/names");
//     if (!items) { Tell(items.Error().Message()); return; }
//     Use(*items);
#pragma once

#include <string>
#include <utility>
#include <variant>

namespace files {

// Where a file is wrong and what was expected there. Line 0 is the file as a whole.
struct FileError {
    std::string file;
    int line = 0;
    std::string what;
    // Of the content: the file was read whole and is wrong. Of the system: nobody knows what is in it, so nothing
    // may be written over it or moved aside.
    enum class Fault { Content, System } fault = Fault::Content;

    // "data/names, line 12: expected a surname, found nothing"
    std::string Message() const
    {
        return file + (line > 0 ? ", line " + std::to_string(line) : "") + ": " + what;
    }
};

template <class T> class [[nodiscard]] Result {
public:
    Result(T value) : content_(std::move(value)) {}
    Result(FileError error) : content_(std::move(error)) {}

    explicit operator bool() const { return std::holds_alternative<T>(content_); }
    const T& operator*() const { return std::get<T>(content_); }
    T& operator*() { return std::get<T>(content_); }
    const T* operator->() const { return &std::get<T>(content_); }
    T* operator->() { return &std::get<T>(content_); }
    const FileError& Error() const { return std::get<FileError>(content_); }

private:
    std::variant<T, FileError> content_;
};

}  // namespace files
