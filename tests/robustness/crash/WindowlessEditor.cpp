#include "WindowlessEditor.h"

#include <sys/wait.h>

#include <algorithm>
#include <csignal>
#include <stdexcept>
#include <unistd.h>

#include "KZMainCfg.h"
#include "TemporaryFolder.h"
#include "project/Project.h"

namespace crash {

namespace {

unsigned BitOf(const std::string& name)
{
    return 1U << (std::find(DocumentNames.begin(), DocumentNames.end(), name) - DocumentNames.begin());
}

unsigned BitsOf(const std::vector<std::string>& names)
{
    unsigned bits = 0;
    for (const std::string& name : names)
        bits |= BitOf(name);
    return bits;
}

long ValueOf(const XmlDocument& document)
{
    return std::wcstol(document.Root()->Value(L"value", L"0"), nullptr, 10);
}

// The process's side.
class Editor : public plant::ProjectUser {
public:
    Editor(const std::filesystem::path& project, int orders, int replies)
        : m_orders(orders), m_replies(replies), m_project(project), m_recoveries(m_project.FindUnsaved())
    {
        m_project.SetUser(this);
    }

    [[noreturn]] void Run()
    {
        Offer();
        for (;;) {
            const Order order = NextOrder();
            Reply reply;
            try {
                reply = Carry(order);
            } catch (const plant::Refusal&) {
                reply.kind = Reply::Kind::Refused;
            }
            Tell(reply);
        }
    }

    Answer AskAboutForeignChanges(const std::vector<std::string>& documents) override
    {
        Reply question;
        question.kind = Reply::Kind::Asks;
        question.documents = BitsOf(documents);
        Tell(question);
        switch (NextOrder().kind) {
        case Order::Kind::Overwrite:
            return Answer::Overwrite;
        case Order::Kind::TakeTheirs:
            return Answer::TakeTheirs;
        default:
            return Answer::Cancel;
        }
    }
    void TellUnprotected(const plant::Message&) noexcept override { std::abort(); }
    void TellWaiting(bool) noexcept override {}

private:
    void Offer()
    {
        Reply reply;
        if (m_recoveries.found.size() > 1 || !m_recoveries.refused.empty())
            std::abort();
        if (!m_recoveries.found.empty()) {
            plant::FoundRecovery& found = m_recoveries.found.front();
            XmlDocument document(L"configuration");
            if (!document.Parse(found.unsaved.documents.at("main.xml").value()))
                std::abort();
            reply.hasFound = true;
            reply.found = ValueOf(document);
            reply.documents = BitsOf(m_project.ChangedSince(found));
        }
        Tell(reply);
    }

    Reply Carry(const Order& order)
    {
        using Kind = Order::Kind;
        const std::string name = DocumentNames[order.document];
        Reply reply;
        switch (order.kind) {
        case Kind::ChangeMain:
            KZMainCfg::Get()->Root()->SetValue(L"value", static_cast<int>(order.value));
            KZMainCfg::Get()->SetDirty(true);
            break;
        case Kind::ReadDevice: {
            XmlDocument document(L"device");
            m_project.ReadDeviceDocument(name, document);
            reply.read = ValueOf(document);
            break;
        }
        case Kind::WriteDevice: {
            XmlDocument document(L"device");
            document.Root()->SetValue(L"value", static_cast<int>(order.value));
            reply.kind = KindOf(m_project.WriteDocument(name, document, "window"));
            break;
        }
        case Kind::Save:
            reply.kind = KindOf(m_project.Save("window"));
            break;
        case Kind::Restore:
            m_project.Restore(static_cast<int>(order.value), false);
            break;
        case Kind::FindForeign:
        case Kind::TakeForeign: {
            std::vector<std::string> names;
            for (const auto& [changed, hash] : m_project.FindForeignChanges())
                names.push_back(changed);
            reply.documents = BitsOf(names);
            if (order.kind == Kind::TakeForeign)
                m_project.TakeTheirs(names);
            break;
        }
        case Kind::Recover:
            m_project.Recover(m_recoveries.found.at(0));
            break;
        case Kind::Decline:
            plant::Discard(m_recoveries.found.at(0));
            break;
        default:
            std::abort();
        }
        return reply;
    }

    static Reply::Kind KindOf(plant::Project::Outcome outcome)
    {
        switch (outcome) {
        case plant::Project::Outcome::Done:
            return Reply::Kind::Done;
        case plant::Project::Outcome::TookTheirs:
            return Reply::Kind::TookTheirs;
        default:
            return Reply::Kind::Cancelled;
        }
    }
    [[nodiscard]] Order NextOrder() const
    {
        Order order{};
        if (::read(m_orders, &order, sizeof order) != sizeof order)
            ::_exit(EXIT_FAILURE);
        return order;
    }
    void Tell(Reply reply) const
    {
        reply.dirty = m_project.IsDirty();
        reply.main = ValueOf(*KZMainCfg::Get());
        if (::write(m_replies, &reply, sizeof reply) != sizeof reply)
            ::_exit(EXIT_FAILURE);
    }

    int m_orders;
    int m_replies;
    plant::Project m_project;
    plant::Recoveries m_recoveries;
};

}  // namespace

std::string TextOf(std::size_t document, long value)
{
    const std::string root = document == 0 ? "configuration" : "device";
    return '<' + root + "><value>" + std::to_string(value) + "</value></" + root + ">\n";
}

long ValueIn(const std::filesystem::path& project, std::size_t document)
{
    const std::string bytes = kztest::BytesOf(project / DocumentNames[document]);
    if (bytes.empty())
        return 0;
    XmlDocument read(document == 0 ? L"configuration" : L"device");
    return read.Parse(bytes) ? ValueOf(read) : -1;
}

WindowlessEditor::WindowlessEditor(const std::filesystem::path& project)
{
    int orders[2];
    int replies[2];
    if (::pipe(orders) != 0 || ::pipe(replies) != 0)
        throw std::runtime_error("no pipes");
    m_process = ::fork();
    if (m_process == 0) {
        ::close(orders[1]);
        ::close(replies[0]);
        try {
            Editor(project, orders[0], replies[1]).Run();
        } catch (...) {
            // As what it did not carry out.
        }
        ::_exit(EXIT_FAILURE);
    }
    ::close(orders[0]);
    ::close(replies[1]);
    m_orders = orders[1];
    m_replies = replies[0];
    m_opening = Hear();
}

WindowlessEditor::~WindowlessEditor()
{
    ::kill(m_process, SIGKILL);
    ::waitpid(m_process, nullptr, 0);
    ::close(m_orders);
    ::close(m_replies);
}

Reply WindowlessEditor::Do(const Order& order)
{
    if (::write(m_orders, &order, sizeof order) != sizeof order)
        throw std::runtime_error("the editor takes no orders");
    return Hear();
}

Reply WindowlessEditor::Hear() const
{
    Reply reply;
    if (::read(m_replies, &reply, sizeof reply) != sizeof reply)
        throw std::runtime_error("the editor has ended");
    return reply;
}

}  // namespace crash
