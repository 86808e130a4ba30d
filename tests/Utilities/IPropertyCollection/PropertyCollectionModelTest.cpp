#include <FactoryTrial.h>

TEST(PropertyCollectionModel, RandomOperationsAgreeWithThePlainRules)
{
#if defined(__SANITIZE_ADDRESS__)
    constexpr unsigned int runs = 500;
#else
    constexpr unsigned int runs = 5000;
#endif
    for (unsigned int seed = 1; seed <= runs; ++seed)
    {
        std::mt19937 engine(seed);
        PropertyCollectionTests::FactoryTrial trial([&engine](unsigned int end)
                                                    { return static_cast<unsigned int>(engine() % end); });
        for (unsigned int step = 0; step < 200; ++step)
            ASSERT_EQ("", trial.Step()) << "seed " << seed << " step " << step;
    }
}
