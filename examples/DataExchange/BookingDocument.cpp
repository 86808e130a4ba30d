#include "BookingDocument.h"

#include "Document.h"

#include <IXMLStreamer/XMLContentElement.h>
#include <IXMLStreamer/XMLStructureElement.h>
#include <Utilities/Base64.h>

#include <utility>

using namespace Vek::Framework::IXMLStreamer::Native;
using Vek::Framework::Utilities::Base64;

namespace Example
{

namespace
{

using Emitter = XMLWriter::AttributeEmitter;

void NoAttributes(Emitter const&)
{
}

void WriteBooking(XMLWriter& writer, Booking const& booking)
{
    writer.WriteBeginStructure("buchung",
                               [&](Emitter const& emit)
                               {
                                   emit("zeile", std::to_string(booking.line));
                                   emit("datum", ToDocument(booking.date));
                                   emit("betrag", ToDocument(FormatAmount(booking.amount)));
                                   emit("waehrung", ToDocument(booking.currency));
                               });
    writer.WriteContentValue("text", ToDocument(booking.text), NoAttributes);
    if (!booking.attachment.empty())
        writer.WriteContentValue(
            "beleg", ToDocument(Base64::Encode(booking.attachment.data(), booking.attachment.size())), NoAttributes);
    writer.WriteEndStructure();
}

/// Collects what belongs to a booking as text, and checks it as a line of a statement would be.
class BookingReader
{
public:
    BookingReader()
    {
        XMLStructureElement& root = m_reader.CreateRootStructureElement("kontoauszug");
        XMLStructureElement& booking = root.CreateStructureElement("buchung");
        Attribute(booking, "zeile", m_line);
        Attribute(booking, "datum", m_booking.date);
        Attribute(booking, "betrag", m_amount);
        Attribute(booking, "waehrung", m_booking.currency);
        Content(booking, "text", m_booking.text);
        Content(booking, "beleg", m_attachment);
        booking.SetOnEnd(1, [this](XMLStructureElement const&) { return Finish(); });
        m_reader.SetVersion(1);
    }
    BookingReader(BookingReader const&) = delete;
    BookingReader& operator=(BookingReader const&) = delete;

    std::vector<Booking> Read(std::filesystem::path const& path)
    {
        ReadDocument(m_reader, path);
        return std::move(m_bookings);
    }

private:
    static void Attribute(XMLElement& element, char const* name, std::wstring& target)
    {
        element.RegisterAttribute(1, name,
                                  [&target](std::string const&, std::string const& value)
                                  {
                                      target = FromDocument(value);
                                      return true;
                                  });
    }

    static void Content(XMLStructureElement& element, char const* name, std::wstring& target)
    {
        element.CreateContentElement(name).SetOnDo(1,
                                                   [&target](XMLContentElement const&, std::string const& content)
                                                   {
                                                       target = FromDocument(content);
                                                       return true;
                                                   });
    }

    bool Finish()
    {
        m_booking.line = std::stoul(m_line);
        m_booking.amount = ParseAmount(m_amount);
        auto const bytes = Base64::Decode(m_attachment);
        m_booking.attachment.assign(bytes->GetData(), bytes->GetData() + bytes->GetSize());
        m_bookings.push_back(std::exchange(m_booking, {}));
        m_attachment.clear();
        return true;
    }

    XMLStreamer m_reader;
    Booking m_booking;
    std::wstring m_line;
    std::wstring m_amount;
    std::wstring m_attachment;
    std::vector<Booking> m_bookings;
};

} // namespace

void WriteBookingDocument(std::filesystem::path const& path, std::vector<Booking> const& bookings)
{
    WriteDocument(path,
                  [&](XMLWriter& writer)
                  {
                      writer.WriteBeginStructure("kontoauszug", NoAttributes);
                      for (Booking const& booking : bookings)
                          WriteBooking(writer, booking);
                      writer.WriteEndStructure();
                  });
}

std::vector<Booking> ReadBookingDocument(std::filesystem::path const& path)
{
    return BookingReader().Read(path);
}

} // namespace Example
