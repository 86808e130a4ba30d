// The store of property collections with 100 to 10,000 collections of 50 integers. No peer does this work; the times
// and how they grow speak for themselves.

#include <Utilities/IPropertyCollection/IntegerProperty.h>
#include <Utilities/IPropertyCollection/PropertyCollectionFactory.h>
#include <Utilities/IPropertyCollection/PropertyCollectionFactoryAccess.h>

#include <benchmark/benchmark.h>

#include <map>
#include <memory>
#include <utility>
#if defined(__GLIBC__)
#    include <malloc.h>
#endif

namespace
{

using namespace Vek::Framework::Utilities::IPropertyCollection::Native;

/// Zero on Windows, whose C library does not tell.
std::size_t GetAllocatedBytes()
{
#if defined(__GLIBC__)
    return mallinfo2().uordblks;
#else
    return 0;
#endif
}

constexpr unsigned int c_kinds = 50;
constexpr unsigned int c_none = PropertyCollection::c_no_id;

void SetValue(PropertyCollection& collection, unsigned int kind, long long value)
{
    GetValueProperty<long long>(collection, kind).SetValue(value);
}

/// `count` unnamed collections that differ in the property `differing`, and a template behind them.
std::unique_ptr<PropertyCollectionFactory> MakeFactory(long long count, unsigned int differing)
{
    auto factory = std::make_unique<PropertyCollectionFactory>(L"standard");
    PropertyCollectionFactoryAccess access(*factory);
    for (unsigned int kind = 1; kind <= c_kinds; ++kind)
    {
        access.AddPropertyInfo(std::make_unique<IntegerPropertyInfo>(kind, L"", L"", 0, 0, 1'000'000));
        access.AddStandardProperty(kind);
    }
    auto const edited = factory->Create();
    for (long long value = 1; value <= count; ++value)
    {
        SetValue(*edited, differing, value);
        factory->ObtainPropertyCollection(*edited, static_cast<unsigned int>(value));
    }
    edited->SetTemplateName(L"last");
    factory->ObtainPropertyCollection(*edited, c_none);
    return factory;
}

PropertyCollectionFactory& GetFactory(long long count, unsigned int differing)
{
    static std::map<std::pair<long long, unsigned int>, std::unique_ptr<PropertyCollectionFactory>> factories;
    auto& factory = factories[{ count, differing }];
    if (factory == nullptr)
        factory = MakeFactory(count, differing);
    return *factory;
}

void ObtainLast(benchmark::State& state, unsigned int differing)
{
    PropertyCollectionFactory& factory = GetFactory(state.range(0), differing);
    auto const edited = factory.Create();
    SetValue(*edited, differing, state.range(0));
    for (auto _ : state)
        benchmark::DoNotOptimize(&factory.ObtainPropertyCollection(*edited, c_none));
}

void ObtainDifferingFirst(benchmark::State& state)
{
    ObtainLast(state, 1);
}

void ObtainDifferingLast(benchmark::State& state)
{
    ObtainLast(state, c_kinds);
}

void FindById(benchmark::State& state)
{
    PropertyCollectionFactory const& factory = GetFactory(state.range(0), 1);
    for (auto _ : state)
        benchmark::DoNotOptimize(&factory.GetPropertyCollection(static_cast<unsigned int>(state.range(0))));
}

void FindByName(benchmark::State& state)
{
    PropertyCollectionFactory const& factory = GetFactory(state.range(0), 1);
    std::wstring const name = L"last";
    for (auto _ : state)
        benchmark::DoNotOptimize(&factory.GetPropertyCollection(name));
}

/// 50 properties that are all there: nothing is allocated.
void Assign(benchmark::State& state)
{
    PropertyCollectionFactory& factory = GetFactory(100, 1);
    auto const edited = factory.Create();
    factory.ObtainPropertyCollection(*edited, 7);
    std::size_t const before = GetAllocatedBytes();
    for (auto _ : state)
        factory.ObtainPropertyCollection(*edited, 7);
    if (GetAllocatedBytes() != before)
        state.SkipWithError("allocates");
}

void CleanUpHalf(benchmark::State& state)
{
    for (auto _ : state)
    {
        state.PauseTiming();
        std::size_t const before = GetAllocatedBytes();
        auto factory = MakeFactory(state.range(0), 1);
        state.counters["bytes per collection"] =
            static_cast<double>(GetAllocatedBytes() - before) / static_cast<double>(state.range(0));
        state.ResumeTiming();
        factory->CleanUp([](PropertyCollection const& collection) { return collection.GetId() % 2 == 0; }, true, true);
        state.PauseTiming();
        factory.reset();
        state.ResumeTiming();
    }
}

BENCHMARK(ObtainDifferingFirst)->RangeMultiplier(10)->Range(100, 10'000)->Unit(benchmark::kMicrosecond);
BENCHMARK(ObtainDifferingLast)->RangeMultiplier(10)->Range(100, 10'000)->Unit(benchmark::kMicrosecond);
BENCHMARK(FindById)->RangeMultiplier(10)->Range(100, 10'000);
BENCHMARK(FindByName)->RangeMultiplier(10)->Range(100, 10'000);
BENCHMARK(Assign);
BENCHMARK(CleanUpHalf)->RangeMultiplier(10)->Range(100, 10'000)->Unit(benchmark::kMicrosecond)->Iterations(3);

} // namespace
