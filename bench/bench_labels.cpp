// Label coding against one plain replace pass over the same text, and the
// repeated-pass replace on a cascade that a literal pass loop would need one
// pass per character for. All should grow linearly with the text.

#include "texthelpers.h"

#include <benchmark/benchmark.h>
#include <string>

namespace {

/// A label of `size` bytes: words, blanks, a few double quotes and bars.
std::string MakeLabel(std::size_t size) {
    static const std::string kPiece = "Our \"new\" products | Home page of the shop, see more ";
    std::string text;
    text.reserve(size + kPiece.size());
    while (text.size() < size)
        text += kPiece;
    text.resize(size);
    return text;
}

/// One ordinary find-and-replace pass, the yardstick.
std::string PlainReplace(const std::string& text) {
    std::string out;
    out.reserve(text.size() + text.size() / 2);
    std::size_t from = 0;
    for (std::size_t hit = text.find(' '); hit != std::string::npos; hit = text.find(' ', from)) {
        out.append(text, from, hit - from);
        out += "&nbsp";
        from = hit + 1;
    }
    out.append(text, from, std::string::npos);
    return out;
}

void Sizes(benchmark::internal::Benchmark* b) {
    b->RangeMultiplier(2)->Range(256 << 10, 2 << 20)->Unit(benchmark::kMicrosecond);
    b->Complexity(benchmark::oN);
}

void BM_PlainReplacePass(benchmark::State& state) {
    const std::string text = MakeLabel(static_cast<std::size_t>(state.range(0)));
    for (auto _ : state)
        benchmark::DoNotOptimize(PlainReplace(text));
    state.SetComplexityN(state.range(0));
    state.SetBytesProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_PlainReplacePass)->Apply(Sizes);

void BM_EncodeLabel(benchmark::State& state) {
    const std::string text = MakeLabel(static_cast<std::size_t>(state.range(0)));
    for (auto _ : state)
        benchmark::DoNotOptimize(orvelin::EncodeLabel(text));
    state.SetComplexityN(state.range(0));
    state.SetBytesProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_EncodeLabel)->Apply(Sizes);

// The stored form of a label of the given size, as a project file holds it.
void BM_DecodeLabel(benchmark::State& state) {
    const std::string text =
        orvelin::EncodeLabel(MakeLabel(static_cast<std::size_t>(state.range(0))));
    for (auto _ : state)
        benchmark::DoNotOptimize(orvelin::DecodeLabel(text));
    state.SetComplexityN(state.range(0));
    state.SetBytesProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_DecodeLabel)->Apply(Sizes);

// ReplaceAll itself on the blank escape, the way callers outside the label
// coding use it.
void BM_ReplaceAllBlanks(benchmark::State& state) {
    const std::string text = MakeLabel(static_cast<std::size_t>(state.range(0)));
    for (auto _ : state)
        benchmark::DoNotOptimize(orvelin::ReplaceAll(text, " ", "&nbsp"));
    state.SetComplexityN(state.range(0));
    state.SetBytesProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_ReplaceAllBlanks)->Apply(Sizes);

// "a" and n times "b" with "ab" -> "a": each pass can only remove one "b", so
// the result "a" takes n passes.
void BM_ReplaceAllCascade(benchmark::State& state) {
    const std::string text = "a" + std::string(static_cast<std::size_t>(state.range(0)), 'b');
    for (auto _ : state) {
        const std::string result = orvelin::ReplaceAll(text, "ab", "a");
        if (result != "a")
            state.SkipWithError("cascade did not collapse");
        benchmark::DoNotOptimize(result);
    }
    state.SetComplexityN(state.range(0));
    state.SetBytesProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_ReplaceAllCascade)->Apply(Sizes);

// A growing pair whose matches move past each pass's end: "ab" -> "bbbb" on
// "abab...", each pass reaches about half of the matches still left.
void BM_ReplaceAllGrowing(benchmark::State& state) {
    std::string text;
    while (text.size() < static_cast<std::size_t>(state.range(0)))
        text += "ab";
    for (auto _ : state)
        benchmark::DoNotOptimize(orvelin::ReplaceAll(text, "ab", "bbbb"));
    state.SetComplexityN(state.range(0));
    state.SetBytesProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_ReplaceAllGrowing)->Apply(Sizes);

} // namespace
