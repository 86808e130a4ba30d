#include <Utilities/CancellationToken.h>
#include <Utilities/EventHandleContainer.h>

using namespace Vek::Framework::Utilities;

TEST(CancellationToken, EveryCopyHasItsOwnFlag)
{
    CancellationToken token;
    CancellationToken copy = token;
    copy.Cancel();
    EXPECT_TRUE(copy.IsCanceled() && !token.IsCanceled());
    token = copy;
    EXPECT_TRUE(token.IsCanceled());
}

namespace
{

class NotingHandle : public EventHandle
{
public:
    explicit NotingHandle(std::function<void()> action) : m_action(std::move(action)) {}
    ~NotingHandle() override { m_action(); }

private:
    std::function<void()> m_action;
};

} // namespace

TEST(EventHandleContainer, DestroysEachOnceInOrder)
{
    std::string trace;
    {
        EventHandleContainer container;
        for (char const name : { 'a', 'b', 'c', 'd' })
        {
            container.Store(std::make_unique<NotingHandle>([&trace, name] { trace += name; }));
            if (name == 'c')
                container.DeleteAll();
        }
        EXPECT_EQ(trace, "abc");
        EXPECT_THROW(container.Store(nullptr), Vek::ArgumentException);
    }
    EXPECT_EQ(trace, "abcd");
}

TEST(EventHandleContainer, HandlesMayStoreAndDeleteWhileTheyAreDestroyed)
{
    std::string trace;
    int left = 20;
    std::function<void()> next;
    {
        EventHandleContainer container;
        next = [&]
        {
            trace += std::to_string(left) + ' ';
            if (left % 5 == 0)
                container.DeleteAll();
            if (--left > 0)
                container.Store(std::make_unique<NotingHandle>(next));
        };
        container.Store(std::make_unique<NotingHandle>(next));
        container.Store(std::make_unique<NotingHandle>([&] { trace += "x "; }));
        container.DeleteAll();
        EXPECT_EQ(trace, "20 x ");
        container.DeleteAll();
        EXPECT_EQ(trace, "20 x 19 ");
    }
    EXPECT_EQ(left, 0);
}
