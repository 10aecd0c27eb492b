// A library of 100,000 documents between its file and its records, beside well-known JSON libraries. The peers do less:
// one only parses, one only walks, and the one that fills records starts from a document that it need not judge.
// Before the clock starts, all that fill records must have filled the same ones.

#include "LibrarySample.hpp"
#include <VellarkDomain/Documents/Library/LibraryFile.hpp>
#include <VellarkFoundation/Records/RecordReader.hpp>
#include <VellarkFoundation/Records/RecordWriter.hpp>

#include <benchmark/benchmark.h>
#if __has_include(<nlohmann/json.hpp>)
#include <nlohmann/json.hpp>
#define VELLARK_HAS_NLOHMANN 1
#endif
#if __has_include(<rapidjson/document.h>)
#include <rapidjson/document.h>
#define VELLARK_HAS_RAPIDJSON 1
#endif
#if VELLARK_HAS_SIMDJSON
#include <simdjson.h>
#endif

#include <cstdlib>
#include <iostream>
#include <string>

namespace {

using vellark::CaptureLibrary;

constexpr std::size_t documentCount = 100'000;

void require(bool holds, const char* what) {
    if (holds) return;
    std::cerr << "LibraryBenchmark: " << what << '\n';
    std::exit(1);
}

#if VELLARK_HAS_RAPIDJSON
// The straightforward way over a parsed document: one look-up for each key, by the same descriptions.

class RapidJSONFields;

template <class Record>
void fill(const rapidjson::Value& value, Record& record);

inline void fill(const rapidjson::Value& value, bool& truth) {
    truth = value.GetBool();
}
inline void fill(const rapidjson::Value& value, std::int64_t& number) {
    number = value.GetInt64();
}
inline void fill(const rapidjson::Value& value, std::string& text) {
    text.assign(value.GetString(), value.GetStringLength());
}
template <vellark::NamedCases Enum>
void fill(const rapidjson::Value& value, Enum& named) {
    named = *vellark::fromRawValue<Enum>({value.GetString(), value.GetStringLength()});
}
template <class Element>
void fill(const rapidjson::Value& value, std::vector<Element>& list) {
    list.reserve(value.Size());
    for (const auto& element : value.GetArray())
        fill(element, list.emplace_back());
}

class RapidJSONFields {
public:
    static constexpr bool isReading = true;

    explicit RapidJSONFields(const rapidjson::Value& object) : object_(object) {}

    template <class Value>
    void required(std::string_view key, Value& value) {
        fill(member(key)->value, value);
    }
    template <class Optional>
    void optional(std::string_view key, Optional& value) {
        const auto found = member(key);
        if (found != object_.MemberEnd()) fill(found->value, value.emplace());
    }
    template <class Optional>
    void tolerant(std::string_view key, Optional& value) {
        optional(key, value);
    }
    template <class Value, class Default>
    void withDefault(std::string_view key, Value& value, const Default& fallback) {
        const auto found = member(key);
        if (found == object_.MemberEnd()) {
            value = fallback;
        } else {
            fill(found->value, value);
        }
    }
    template <class Value>
    void unstored(Value&) {}

private:
    rapidjson::Value::ConstMemberIterator member(std::string_view key) const {
        return object_.FindMember(rapidjson::StringRef(key.data(), static_cast<rapidjson::SizeType>(key.size())));
    }

    const rapidjson::Value& object_;
};

template <class Record>
void fill(const rapidjson::Value& value, Record& record) {
    RapidJSONFields fields(value);
    describe(fields, record);
}

CaptureLibrary rapidJSONLibrary(const std::string& text) {
    rapidjson::Document document;
    document.Parse(text.data(), text.size());
    CaptureLibrary library;
    fill(document, library);
    return library;
}
#endif

#if VELLARK_HAS_SIMDJSON
std::size_t walk(simdjson::ondemand::value value) {
    std::size_t sum = 0;
    switch (value.type()) {
        case simdjson::ondemand::json_type::array:
            for (auto element : value.get_array())
                sum += walk(element.value());
            return sum;
        case simdjson::ondemand::json_type::object:
            for (auto field : value.get_object()) {
                sum += std::string_view(field.unescaped_key()).size();
                sum += walk(field.value());
            }
            return sum;
        case simdjson::ondemand::json_type::string:
            return std::string_view(value.get_string()).size();
        case simdjson::ondemand::json_type::number:
            return static_cast<std::size_t>(std::int64_t(value.get_int64()));
        case simdjson::ondemand::json_type::boolean:
            return bool(value.get_bool()) ? 1 : 0;
        default:
            return 0;
    }
}
#endif

template <class Result>
void discard(Result) {}

template <class Routine>
void time(const char* name, std::size_t byteCount, Routine routine) {
    benchmark::RegisterBenchmark(name, [=](benchmark::State& state) {
        for ([[maybe_unused]] auto _ : state) {
            auto result = routine();
            benchmark::DoNotOptimize(result);
            state.PauseTiming();  // giving the memory back is not part of anyone's time
            discard(std::move(result));
            state.ResumeTiming();
        }
        state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * byteCount));
    })->Unit(benchmark::kMillisecond);
}

std::size_t writtenBytes(const CaptureLibrary& library) {
    std::size_t count = 0;
    const auto written = writeRecord(library, [&](std::string_view piece) { count += piece.size(); });
    return written ? count : 0;
}

// Of a process of its own, whose peak memory `library-memory` watches.
int makeFile(const std::string& path) {
    const CaptureLibrary library = vellark::sample::LibraryMaker().library(documentCount);
    return vellark::LibraryFile::write(library, path).has_value() ? 0 : 1;
}

int readFile(const std::string& path) {
    const auto contents = vellark::LibraryFile::read(path);
    return contents && contents->library.documents.size() == documentCount ? 0 : 1;
}

}  // namespace

int main(int argumentCount, char** arguments) {
    const std::string_view order = argumentCount == 3 ? arguments[1] : "";
    if (order == "--make") return makeFile(arguments[2]);
    if (order == "--read") return readFile(arguments[2]);

    const CaptureLibrary library = vellark::sample::LibraryMaker().library(documentCount);
    const std::string text = writeRecord(library).value_or("");
    require(vellark::readRecord<CaptureLibrary>(std::string_view(text)) == library, "the file says something else");
    require(writtenBytes(library) == text.size(), "pieces are not the whole");
#if VELLARK_HAS_RAPIDJSON
    require(rapidJSONLibrary(text) == library, "RapidJSON filled other records");
#endif

    time("ours/read", text.size(), [&] { return vellark::readRecord<CaptureLibrary>(std::string_view(text)); });
    time("ours/write", text.size(), [&] { return writtenBytes(library); });
#if VELLARK_HAS_NLOHMANN
    time("peer/nlohmann/parse", text.size(), [&] { return nlohmann::json::parse(text); });
#endif
#if VELLARK_HAS_RAPIDJSON
    time("peer/rapidjson/records", text.size(), [&] { return rapidJSONLibrary(text); });
#endif
#if VELLARK_HAS_SIMDJSON
    const simdjson::padded_string padded(text);
    simdjson::ondemand::parser parser;
    time("peer/simdjson/walk", text.size(), [&] {
        auto document = parser.iterate(padded);
        return walk(document.get_value().value());
    });
#endif

    benchmark::Initialize(&argumentCount, arguments);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
