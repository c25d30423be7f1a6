// Reads what kmctl prints as JSON; strict, so that a text no other reader would take is found out.
#pragma once

#include "platform/memory/Codepage.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace korvane {

struct JsonValue {
    enum class Kind { Missing, Null, Boolean, Number, Text, Array, Object };
    Kind kind = Kind::Missing;
    bool boolean = false;
    long long number = 0;
    std::string text{};
    std::vector<JsonValue> items{};
    std::vector<std::pair<std::string, JsonValue>> members{};

    const JsonValue& operator[](std::string_view name) const {
        static const JsonValue missing;
        for (const auto& [memberName, value] : members) {
            if (memberName == name) {
                return value;
            }
        }
        return missing;
    }
    const JsonValue& operator[](std::size_t index) const { return items.at(index); }
    // "item title page": what the object has, in its order.
    std::string names() const {
        std::string all;
        for (const auto& member : members) {
            all += (all.empty() ? "" : " ") + member.first;
        }
        return all;
    }
};

class JsonReader {
public:
    // One value with nothing but white space behind it; a failed test and a missing value otherwise.
    static JsonValue read(std::string_view json) {
        JsonReader reader(json);
        JsonValue value = reader.value();
        reader.blanks();
        if (!fromUtf8(json) || reader.failed_ || reader.at_ != json.size()) {
            ADD_FAILURE() << "no JSON at byte " << reader.at_ << " of " << json;
            return {};
        }
        return value;
    }

private:
    using Kind = JsonValue::Kind;

    explicit JsonReader(std::string_view json) : json_(json) {}

    char next() const { return at_ < json_.size() ? json_[at_] : '\0'; }
    void blanks() {
        while (next() == ' ' || next() == '\n' || next() == '\r' || next() == '\t') {
            ++at_;
        }
    }
    bool take(std::string_view word) {
        blanks();
        const bool found = json_.substr(at_).starts_with(word);
        at_ += found ? word.size() : 0;
        return found;
    }
    JsonValue fail() {
        failed_ = true;
        return {};
    }

    JsonValue value() {
        if (failed_) {
            return {};
        }
        if (take("null")) {
            return {.kind = Kind::Null};
        }
        if (take("true")) {
            return {.kind = Kind::Boolean, .boolean = true};
        }
        if (take("false")) {
            return {.kind = Kind::Boolean};
        }
        if (take("\"")) {
            return {.kind = Kind::Text, .text = quoted()};
        }
        if (take("[")) {
            return array();
        }
        return take("{") ? object() : number();
    }

    JsonValue number() {
        const bool negative = take("-");
        JsonValue value{.kind = Kind::Number};
        const std::size_t start = at_;
        for (; next() >= '0' && next() <= '9'; ++at_) {
            value.number = value.number * 10 + (next() - '0');
        }
        value.number = negative ? -value.number : value.number;
        return at_ != start ? value : fail();
    }

    JsonValue array() {
        JsonValue value{.kind = Kind::Array};
        if (take("]")) {
            return value;
        }
        do {
            value.items.push_back(this->value());
        } while (!failed_ && take(","));
        return take("]") ? value : fail();
    }

    JsonValue object() {
        JsonValue value{.kind = Kind::Object};
        if (take("}")) {
            return value;
        }
        do {
            const std::string name = take("\"") ? quoted() : fail().text;
            value.members.emplace_back(name, take(":") ? this->value() : fail());
        } while (!failed_ && take(","));
        return take("}") ? value : fail();
    }

    std::string quoted() {
        std::string text;
        for (; next() != '"'; ++at_) {
            if (at_ == json_.size() || static_cast<unsigned char>(next()) < ' ') {
                return fail().text;
            }
            text += next() == '\\' ? escaped() : std::string(1, next());
        }
        ++at_;
        return text;
    }

    std::string escaped() {
        constexpr std::string_view kLetters = "\"\\/bfnrt";
        constexpr std::string_view kMeanings = "\"\\/\b\f\n\r\t";
        ++at_;
        const std::size_t letter = kLetters.find(next());
        if (letter != std::string_view::npos) {
            return std::string(1, kMeanings[letter]);
        }
        const std::string digits(json_.substr(at_ + 1, 4));
        if (next() != 'u' || digits.find_first_not_of("0123456789abcdefABCDEF") != std::string::npos ||
            digits.size() != 4) {
            return fail().text;
        }
        at_ += 4;
        return toUtf8(std::u16string(1, static_cast<char16_t>(std::stoi(digits, nullptr, 16))));
    }

    std::string_view json_;
    std::size_t at_ = 0;
    bool failed_ = false;
};

}  // namespace korvane
