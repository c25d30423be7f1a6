// Writes one JSON text, piece by piece.
#pragma once

#include <string>
#include <string_view>

namespace korvane {

// Begins and ends must match, and every value in an object needs its name first.
class JsonWriter {
public:
    void beginObject() { begin('{'); }
    void endObject() { end('}'); }
    void beginArray() { begin('['); }
    void endArray() { end(']'); }
    void name(std::string_view name);
    void text(std::string_view utf8);
    void number(long long value) { plain(std::to_string(value)); }
    void boolean(bool value) { plain(value ? "true" : "false"); }
    void null() { plain("null"); }

    const std::string& json() const { return json_; }

private:
    void begin(char bracket);
    void end(char bracket);
    void plain(std::string_view value);
    void separate();
    void quoted(std::string_view utf8);

    std::string json_;
    bool commaNeeded_ = false;
};

}  // namespace korvane
