// The JSON reader and writer beside well-known libraries, on a payload of four megabytes as the helper gets it.
// Before the clock starts, every library must have read the same values.

#include <VellarkDomain/Capture/CaptureSignal.hpp>
#include <VellarkFoundation/JSON/JSONReader.hpp>
#include <VellarkFoundation/JSON/PythonJSONWriter.hpp>

#include <benchmark/benchmark.h>
#include <boost/json.hpp>
#if __has_include(<nlohmann/json.hpp>)
#include <nlohmann/json.hpp>
#define VELLARK_HAS_NLOHMANN 1
#endif
#if __has_include(<rapidjson/document.h>)
#include <rapidjson/document.h>
#define VELLARK_HAS_RAPIDJSON 1
#endif

#include <cstdlib>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>

namespace {

using vellark::JSONArray;
using vellark::JSONMember;
using vellark::JSONNumber;
using vellark::JSONObject;
using vellark::JSONValue;
using vellark::JSONReader::read;

// Each library's value as one of ours.

JSONValue ours(const boost::json::value& value) {
    switch (value.kind()) {
        case boost::json::kind::null:
            return nullptr;
        case boost::json::kind::bool_:
            return value.get_bool();
        case boost::json::kind::string:
            return std::string(value.get_string());
        case boost::json::kind::array: {
            JSONArray array;
            for (const auto& element : value.get_array())
                array.push_back(ours(element));
            return array;
        }
        case boost::json::kind::object: {
            JSONObject object;
            for (const auto& [key, member] : value.get_object())
                object.set(std::string_view(key.data(), key.size()), ours(member));
            return object;
        }
        default:
            return JSONNumber{boost::json::serialize(value)};
    }
}

#if VELLARK_HAS_NLOHMANN
// Keeps the order of members, as the others do.
using Nlohmann = nlohmann::ordered_json;

JSONValue ours(const Nlohmann& value) {
    if (value.is_null()) return nullptr;
    if (value.is_boolean()) return value.get<bool>();
    if (value.is_string()) return value.get<std::string>();
    if (value.is_number()) return JSONNumber{value.dump()};
    if (value.is_array()) {
        JSONArray array;
        for (const Nlohmann& element : value)
            array.push_back(ours(element));
        return array;
    }
    JSONObject object;
    for (const auto& [key, member] : value.items())
        object.set(key, ours(member));
    return object;
}
#endif

#if VELLARK_HAS_RAPIDJSON
// As strict as our reader: whole text, well-formed UTF-8, no recursion that the text could drive.
constexpr unsigned strict =
    rapidjson::kParseIterativeFlag | rapidjson::kParseValidateEncodingFlag | rapidjson::kParseNumbersAsStringsFlag;

JSONValue ours(const rapidjson::Value& value, bool isNumber = false);

// Numbers come as strings here; the payload has them under these keys only.
bool holdsNumber(std::string_view key) {
    return key.ends_with("Start") || key.ends_with("Lines");
}

JSONValue ours(const rapidjson::Value& value, bool isNumber) {
    if (value.IsNull()) return nullptr;
    if (value.IsBool()) return value.GetBool();
    if (value.IsString()) {
        std::string text(value.GetString(), value.GetStringLength());
        return isNumber ? JSONValue(JSONNumber{std::move(text)}) : JSONValue(std::move(text));
    }
    if (value.IsArray()) {
        JSONArray array;
        for (const auto& element : value.GetArray())
            array.push_back(ours(element));
        return array;
    }
    JSONObject object;
    for (const auto& member : value.GetObject()) {
        const std::string_view key(member.name.GetString(), member.name.GetStringLength());
        object.set(key, ours(member.value, holdsNumber(key)));
    }
    return object;
}
#endif

void require(bool holds, const char* what) {
    if (holds) return;
    std::cerr << "JSONBenchmark: " << what << '\n';
    std::exit(1);
}

std::string payload() {
    const char* directory = std::getenv("VELLARK_BENCHMARK_DATA");
    require(directory != nullptr, "VELLARK_BENCHMARK_DATA must name the directory of the payloads");
    std::ifstream file(std::string(directory) + "/large.json", std::ios::binary);
    std::string text(std::istreambuf_iterator<char>(file), {});
    require(!text.empty(), "the payload is missing");
    return text;
}

void checkAnswers(const std::string& text, const JSONValue& value) {
    require(ours(boost::json::parse(text)) == value, "Boost.JSON read something else");
#if VELLARK_HAS_NLOHMANN
    require(ours(Nlohmann::parse(text)) == value, "nlohmann read something else");
#endif
#if VELLARK_HAS_RAPIDJSON
    rapidjson::Document document;
    document.Parse<strict>(text.data(), text.size());
    require(!document.HasParseError() && ours(document) == value, "RapidJSON read something else");
#endif

    const auto kept = read(text, {.keep = vellark::CaptureSignal::payloadSelection()});
    require(kept && kept->object() != nullptr, "the selection was not read");
    const auto signalOf = [](const JSONValue& read) {
        return vellark::CaptureSignal::encode("claude", *read.object(), {.includesResponses = true, .sortKeys = false});
    };
    require(signalOf(*kept) == signalOf(value), "the selection dropped something that the signal needs");

    const auto written = vellark::PythonJSONWriter::write(value);
    require(written && read(*written) == value, "the writer wrote something else");
}

template <class Routine>
void time(const char* name, std::size_t byteCount, Routine routine) {
    benchmark::RegisterBenchmark(name, [=](benchmark::State& state) {
        for ([[maybe_unused]] auto _ : state) {
            auto result = routine();
            benchmark::DoNotOptimize(result);
        }
        state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * byteCount));
    })->Unit(benchmark::kMillisecond);
}

}  // namespace

int main(int argumentCount, char** arguments) {
    const std::string text = payload();
    auto whole = read(text);
    require(whole.has_value(), "the payload was not read");
    const JSONValue value = std::move(*whole);
    checkAnswers(text, value);

    time("ours/read", text.size(), [&] { return read(text); });
    time("ours/readSelection", text.size(),
         [&] { return read(text, {.keep = vellark::CaptureSignal::payloadSelection()}); });
    time("ours/write", text.size(), [&] { return vellark::PythonJSONWriter::write(value); });
    time("peer/boost/read", text.size(), [&] { return boost::json::parse(text); });
#if VELLARK_HAS_NLOHMANN
    const Nlohmann nlohmannValue = Nlohmann::parse(text);
    time("peer/nlohmann/read", text.size(), [&] { return Nlohmann::parse(text); });
    time("peer/nlohmann/write", text.size(), [&] { return nlohmannValue.dump(-1, ' ', true); });
#endif
#if VELLARK_HAS_RAPIDJSON
    time("peer/rapidjson/read", text.size(), [&] {
        rapidjson::Document document;
        document.Parse<strict>(text.data(), text.size());
        return document.HasParseError();
    });
#endif

    benchmark::Initialize(&argumentCount, arguments);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
