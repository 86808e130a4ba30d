// The store of property collections with 100 to 10,000 collections of 50 integers. No peer does this work; the times
// and how they grow speak for themselves.

#include <Utilities/IPropertyCollection/IntegerProperty.h>
#include <Utilities/IPropertyCollection/PropertyCollectionFactory.h>
#include <Utilities/IPropertyCollection/PropertyCollectionFactoryAccess.h>

#include <benchmark/benchmark.h>

#include <map>
#include <memory>
#include <string>
#include <tuple>
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

/// A number as a program may hold it: the library knows nothing of its values and has to ask each.
class OwnProperty final : public Property
{
public:
    explicit OwnProperty(PropertyInfo const& info) : Property(info.GetId()), m_info(info) {}

    std::wstring GetUserText() const override { return std::to_wstring(value); }
    void SetToDefault() override { value = 0; }
    PropertyInfo const& GetPropertyInfo() const override { return m_info; }

    long long value = 0;

protected:
    void OnClone(Property const& other) override
    {
        value = static_cast<OwnProperty const&>(other).value;
        Property::OnClone(other);
    }
    bool OnIsEqual(Property const& other) const override
    {
        return Property::OnIsEqual(other) && value == static_cast<OwnProperty const&>(other).value;
    }

private:
    PropertyInfo const& m_info;
};

class OwnKind : public PropertyInfo
{
public:
    explicit OwnKind(unsigned int id) : PropertyInfo(id, L"", L"", IntegerValue) {}
    std::shared_ptr<Property> CreateProperty() const override { return std::make_shared<OwnProperty>(*this); }
};

enum class Kinds
{
    ReadyMade,
    Own
};

std::unique_ptr<PropertyInfo> MakeKind(Kinds kinds, unsigned int id)
{
    if (kinds == Kinds::Own)
        return std::make_unique<OwnKind>(id);
    return std::make_unique<IntegerPropertyInfo>(id, L"", L"", 0, 0, 1'000'000);
}

void SetValue(PropertyCollection& collection, Kinds kinds, unsigned int kind, long long value)
{
    if (kinds == Kinds::Own)
        static_cast<OwnProperty&>(collection.GetProperty(kind)).value = value;
    else
        GetValueProperty<long long>(collection, kind).SetValue(value);
}

/// `count` unnamed collections that differ in the property `differing`, and a template behind them.
std::unique_ptr<PropertyCollectionFactory> MakeFactory(long long count, Kinds kinds, unsigned int differing)
{
    auto factory = std::make_unique<PropertyCollectionFactory>(L"standard");
    PropertyCollectionFactoryAccess access(*factory);
    for (unsigned int kind = 1; kind <= c_kinds; ++kind)
    {
        access.AddPropertyInfo(MakeKind(kinds, kind));
        access.AddStandardProperty(kind);
    }
    auto const edited = factory->Create();
    for (long long value = 1; value <= count; ++value)
    {
        SetValue(*edited, kinds, differing, value);
        factory->ObtainPropertyCollection(*edited, static_cast<unsigned int>(value));
    }
    edited->SetTemplateName(L"last");
    factory->ObtainPropertyCollection(*edited, c_none);
    return factory;
}

PropertyCollectionFactory& GetFactory(long long count, Kinds kinds, unsigned int differing)
{
    static std::map<std::tuple<long long, Kinds, unsigned int>, std::unique_ptr<PropertyCollectionFactory>> factories;
    auto& factory = factories[{ count, kinds, differing }];
    if (factory == nullptr)
        factory = MakeFactory(count, kinds, differing);
    return *factory;
}

void ObtainLast(benchmark::State& state, Kinds kinds, unsigned int differing)
{
    PropertyCollectionFactory& factory = GetFactory(state.range(0), kinds, differing);
    auto const edited = factory.Create();
    SetValue(*edited, kinds, differing, state.range(0));
    for (auto _ : state)
        benchmark::DoNotOptimize(&factory.ObtainPropertyCollection(*edited, c_none));
}

void FindById(benchmark::State& state)
{
    PropertyCollectionFactory const& factory = GetFactory(state.range(0), Kinds::ReadyMade, 1);
    for (auto _ : state)
        benchmark::DoNotOptimize(&factory.GetPropertyCollection(static_cast<unsigned int>(state.range(0))));
}

void FindByName(benchmark::State& state)
{
    PropertyCollectionFactory const& factory = GetFactory(state.range(0), Kinds::ReadyMade, 1);
    std::wstring const name = L"last";
    for (auto _ : state)
        benchmark::DoNotOptimize(&factory.GetPropertyCollection(name));
}

/// 50 properties that are all there: nothing is allocated.
void Assign(benchmark::State& state)
{
    PropertyCollectionFactory& factory = GetFactory(100, Kinds::ReadyMade, 1);
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
        auto factory = MakeFactory(state.range(0), Kinds::ReadyMade, 1);
        state.counters["bytes per collection"] =
            static_cast<double>(GetAllocatedBytes() - before) / static_cast<double>(state.range(0));
        state.ResumeTiming();
        factory->CleanUp([](PropertyCollection const& collection) { return collection.GetId() % 2 == 0; }, true, true);
        state.PauseTiming();
        factory.reset();
        state.ResumeTiming();
    }
}

void Sizes(benchmark::internal::Benchmark* row)
{
    row->RangeMultiplier(10)->Range(100, 10'000)->Unit(benchmark::kMicrosecond);
}

BENCHMARK_CAPTURE(ObtainLast, ReadyMadeDifferingFirst, Kinds::ReadyMade, 1U)->Apply(Sizes);
BENCHMARK_CAPTURE(ObtainLast, ReadyMadeDifferingLast, Kinds::ReadyMade, c_kinds)->Apply(Sizes);
BENCHMARK_CAPTURE(ObtainLast, OwnDifferingFirst, Kinds::Own, 1U)->Apply(Sizes);
BENCHMARK_CAPTURE(ObtainLast, OwnDifferingLast, Kinds::Own, c_kinds)->Apply(Sizes);
BENCHMARK(FindById)->RangeMultiplier(10)->Range(100, 10'000);
BENCHMARK(FindByName)->RangeMultiplier(10)->Range(100, 10'000);
BENCHMARK(Assign);
// Its rounds are too few and too short for the clock of processor time that Windows has.
BENCHMARK(CleanUpHalf)->Apply(Sizes)->Iterations(10)->UseRealTime();

} // namespace
