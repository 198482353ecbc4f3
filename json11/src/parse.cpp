#include "document.h"
#include "numbers.h"

#include <iterator>
#include <optional>
#include <rapidjson/error/en.h>
#include <rapidjson/reader.h>
#include <string_view>

namespace json11 {
inline namespace standin {

constexpr std::size_t MAX_DEPTH = 200;

/// Makes a document from the reader's events. An event that returns false ends the reading.
class Builder : public rapidjson::BaseReaderHandler<rapidjson::UTF8<>, Builder> {
public:
    bool Null() { return place(nullptr); }
    bool Bool(bool value) { return place(value); }
    bool RawNumber(const char *text, rapidjson::SizeType length, bool) {
        return place(internal::toNumber(text, length));
    }
    bool String(const char *text, rapidjson::SizeType length, bool) {
        document->strings.emplace_back(text, length);
        return place(Json(Json::STRING, document->strings.size() - 1, 0, inside));
    }
    bool StartObject() { return start('{'); }
    bool StartArray() { return start('['); }
    bool Key(const char *text, rapidjson::SizeType length, bool) {
        pending.emplace_back().key = std::string_view(text, length);
        return true;
    }
    bool EndObject(rapidjson::SizeType count) {
        const auto first = pending.end() - count;
        auto &members = document->members;
        members.insert(members.end(), std::make_move_iterator(first), std::make_move_iterator(pending.end()));
        return finish(count, Json(Json::OBJECT, members.size() - count, count, inside));
    }
    bool EndArray(rapidjson::SizeType count) {
        auto &items = document->arrays.emplace_back();
        items.reserve(count);
        for (auto item = pending.end() - count; item != pending.end(); ++item)
            items.push_back(std::move(item->value));
        return finish(count, Json(Json::ARRAY, document->arrays.size() - 1, 0, inside));
    }

    /// The value of the text that was read.
    Json root() const { return pending.front().value; }

    /// Reads in place, so it changes the text.
    template <unsigned FLAGS>
    rapidjson::ParseResult read(const std::string &text) {
        document->text = text;
        document->members.reserve(text.size() / 16); // about the number of members in the device's objects
        pending.reserve(16);
        rapidjson::InsituStringStream stream(document->text.data());
        return rapidjson::Reader()
            .Parse<FLAGS | rapidjson::kParseInsituFlag | rapidjson::kParseNumbersAsStringsFlag>(stream,
                                                                                                *this);
    }

private:
    const std::shared_ptr<Json::Document> document = std::make_shared<Json::Document>();
    const std::shared_ptr<const Json::Document> inside{std::shared_ptr<void>(), document.get()};
    /// Members and items of the open containers, outermost first. The last member of an object may have no
    /// value yet.
    std::vector<Json::Document::Member> pending;
    std::string open; // the containers: '{' or '['

    bool start(char container) {
        open.push_back(container);
        return open.size() - 1 <= MAX_DEPTH;
    }
    bool finish(std::size_t count, Json &&value) {
        pending.resize(pending.size() - count);
        open.pop_back();
        return place(std::move(value));
    }
    bool place(Json &&value) {
        if (open.empty() || open.back() == '[')
            pending.emplace_back();
        pending.back().value = std::move(value);
        return open.size() <= MAX_DEPTH;
    }
};

Json Json::parse(const std::string &in, std::string &err, JsonParse strategy) {
    // The reader would take it for the end of the text.
    if (const auto zero = in.find('\0'); zero != std::string::npos) {
        err = "zero byte at offset " + std::to_string(zero);
        return nullptr;
    }
    std::optional<Builder> builder;
    const auto readAll = [&](const std::string &text) {
        builder.emplace();
        return strategy == JsonParse::COMMENTS ? builder->read<rapidjson::kParseCommentsFlag>(text)
                                               : builder->read<rapidjson::kParseNoFlags>(text);
    };
    rapidjson::ParseResult result = readAll(in);
    if (result.Code() == rapidjson::kParseErrorNumberTooBig)
        result = readAll(internal::withPlainNumbers(in));
    if (result.IsError()) {
        err = result.Code() == rapidjson::kParseErrorTermination ? "nested too deep"
                                                                 : rapidjson::GetParseError_En(result.Code());
        err += " at offset " + std::to_string(result.Offset());
        return nullptr;
    }
    return builder->root();
}

Json Json::parse(const char *in, std::string &err, JsonParse strategy) {
    if (!in) {
        err = "null input";
        return nullptr;
    }
    return parse(std::string(in), err, strategy);
}

} // namespace standin
} // namespace json11
