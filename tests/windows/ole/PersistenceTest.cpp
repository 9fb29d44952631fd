// Property bags, streams and storages; whole, damaged, and at the wrong moment.

#include <algorithm>

#include "tests/windows/ole/Check.h"
#include "tests/windows/ole/Host.h"

using namespace kel::tests;

namespace {

Ref<IStream> memoryStream(const std::string& bytes = {}) {
    Ref<IStream> stream;
    EXPECT_CODE(CreateStreamOnHGlobal(nullptr, TRUE, stream.receive()), S_OK);
    stream->Write(bytes.data(), static_cast<ULONG>(bytes.size()), nullptr);
    stream->Seek({}, STREAM_SEEK_SET, nullptr);
    return stream;
}

std::string bytesOf(IStream* stream) {
    std::string bytes(100000, '\0');
    ULONG count = 0;
    stream->Seek({}, STREAM_SEEK_SET, nullptr);
    stream->Read(bytes.data(), static_cast<ULONG>(bytes.size()), &count);
    bytes.resize(count);
    return bytes;
}

/// A field with something other than its default in every kind of property.
Ref<_KelText> filledField() {
    auto field = makeText();
    EXPECT_CODE(field.as<IPersistStreamInit>()->InitNew(), S_OK);
    field->put_Caption(Str(L"Näme"));
    field->put_CaptionWidth(900);
    field->put_Locked(VARIANT_TRUE);
    field->put_MaxLength(12);
    field->put_Text(Str(L"x \"y\" 12,5"));
    return field;
}

void expectFilled(_KelText* field) {
    constexpr std::pair<const wchar_t*, const wchar_t*> Wanted[] = {
        {L"Caption", L"text Näme"}, {L"CaptionWidth", L"short 900"}, {L"MaxLength", L"short 12"},
        {L"Locked", L"bool True"},  {L"Mandatory", L"bool True"},    {L"Text", L"text x \"y\" 12,5"}};
    for (const auto& [name, value] : Wanted) EXPECT_EQ(late(field, name), std::wstring(value));
}

std::string savedBytes() {
    const auto stream = memoryStream();
    EXPECT_CODE(filledField().as<IPersistStreamInit>()->Save(stream.get(), TRUE), S_OK);
    return bytesOf(stream.get());
}

/// True when a damaged stream is refused and the field stays a new one.
bool isRefused(const std::string& bytes) {
    const auto field = makeText();
    const auto stream = memoryStream(bytes);
    if (SUCCEEDED(field.as<IPersistStreamInit>()->Load(stream.get()))) return false;
    EXPECT_EQ(late(field.get(), L"CaptionWidth"), L"short 0");
    EXPECT_EQ(text(field.get()), std::wstring());
    EXPECT_CODE(field.as<IPersistStreamInit>()->InitNew(), S_OK);
    return true;
}

}  // namespace

TEST(persist_bag_round_trip_leaves_out_defaults) {
    Bag saved;
    EXPECT_CODE(save(filledField().get(), saved), S_OK);
    EXPECT(saved.Written == (std::vector<std::wstring>{L"Caption=Näme", L"CaptionWidth=900", L"Locked=True",
                                                       L"MaxLength=12", L"Text=x \"y\" 12,5"}));
    Bag stored;
    for (const std::wstring& line : saved.Written)
        stored.Texts[line.substr(0, line.find(L'='))] = line.substr(line.find(L'=') + 1);
    const auto field = makeText();
    EXPECT_CODE(load(field.get(), stored), S_OK);
    expectFilled(field.get());
    EXPECT_CODE(field.as<IPersistStreamInit>()->IsDirty(), S_FALSE);
}

TEST(persist_bag_with_a_wrong_value_is_refused_whole) {
    Bag stored;
    stored.Texts = {{L"Caption", L"Name"}, {L"CaptionWidth", L"wide"}};
    const auto field = makeText();
    EXPECT_CODE(load(field.get(), stored), DISP_E_TYPEMISMATCH);
    EXPECT_EQ(captionOf(field.get()), std::wstring());
}

TEST(persist_bag_that_cannot_be_read_is_no_bag_without_properties) {
    struct Row {
        HRESULT said;  ///< of a property that is asked for
        HRESULT loaded;
    };
    constexpr Row Rows[] = {
        {E_INVALIDARG, S_OK}, {E_FAIL, S_OK}, {E_OUTOFMEMORY, E_OUTOFMEMORY}, {STG_E_READFAULT, STG_E_READFAULT}};
    for (const Row& row : Rows) {
        Bag stored;
        stored.Absent = row.said;
        EXPECT_CODE(load(makeText().get(), stored), row.loaded);
    }
}

TEST(persist_stream_round_trip) {
    const auto saved = filledField();
    const auto stream = memoryStream();
    ULARGE_INTEGER size{};
    EXPECT_CODE(saved.as<IPersistStreamInit>()->GetSizeMax(&size), S_OK);
    EXPECT_CODE(saved.as<IPersistStreamInit>()->Save(stream.get(), TRUE), S_OK);
    EXPECT_CODE(saved.as<IPersistStreamInit>()->IsDirty(), S_FALSE);
    EXPECT_EQ(bytesOf(stream.get()).size(), static_cast<std::size_t>(size.QuadPart));
    stream->Write("behind", 6, nullptr);
    stream->Seek({}, STREAM_SEEK_SET, nullptr);
    const auto field = makeText();
    EXPECT_CODE(field.as<IPersistStreamInit>()->Load(stream.get()), S_OK);
    expectFilled(field.get());
    char behind[6] = {};
    ULONG count = 0;
    stream->Read(behind, sizeof behind, &count);
    EXPECT(std::string(behind, count) == "behind");
}

TEST(persist_stream_cut_short_anywhere_is_refused) {
    const std::string bytes = savedBytes();
    for (std::size_t length = 0; length < bytes.size(); ++length) EXPECT(isRefused(bytes.substr(0, length)));
}

TEST(persist_stream_damaged_anywhere_does_no_harm) {
    const std::string bytes = savedBytes();
    EXPECT(isRefused(std::string(64, 'x')));
    for (std::size_t at = 0; at < bytes.size(); ++at)
        for (const char damage : {'\x00', '\x7F', '\xFF'}) {
            std::string damaged = bytes;
            damaged[at] = damage;
            const auto field = makeText();
            const HRESULT result = field.as<IPersistStreamInit>()->Load(memoryStream(damaged).get());
            if (SUCCEEDED(result)) text(field.get());
        }
}

TEST(persist_stream_passes_over_what_it_does_not_know) {
    std::string bytes = savedBytes();
    std::string entry;
    const auto number = [&entry](unsigned value, int count) {
        for (int i = 0; i < count; ++i) entry += static_cast<char>(value >> (8 * i) & 0xFF);
    };
    number(3, 4);
    for (const char unit : {'N', 'e', 'w'}) number(static_cast<unsigned>(unit), 2);
    number(200, 1);
    number(5, 4);
    entry += "later";
    const std::size_t body = bytes.size() - 12 + entry.size();
    for (int i = 0; i < 4; ++i) bytes[8 + static_cast<std::size_t>(i)] = static_cast<char>(body >> (8 * i) & 0xFF);
    const auto field = makeText();
    EXPECT_CODE(field.as<IPersistStreamInit>()->Load(memoryStream(bytes + entry).get()), S_OK);
    expectFilled(field.get());
}

TEST(persist_storage_round_trip) {
    Ref<IStorage> storage;
    EXPECT_CODE(StgCreateDocfile(nullptr, STGM_CREATE | STGM_READWRITE | STGM_SHARE_EXCLUSIVE | STGM_DELETEONRELEASE, 0,
                                 storage.receive()),
                S_OK);
    const auto saved = filledField();
    const auto persist = saved.as<IPersistStorage>();
    EXPECT_CODE(persist->InitNew(storage.get()), CO_E_ALREADYINITIALIZED);
    EXPECT_CODE(persist->Save(storage.get(), FALSE), S_OK);
    EXPECT_CODE(persist->SaveCompleted(nullptr), S_OK);
    const auto field = makeText();
    EXPECT_CODE(field.as<IPersistStorage>()->Load(storage.get()), S_OK);
    expectFilled(field.get());
}

namespace {

/// Hears when a document's part is saved.
class SaveSink final : public StackObject<IAdviseSink> {
public:
    void STDMETHODCALLTYPE OnDataChange(FORMATETC*, STGMEDIUM*) override {}
    void STDMETHODCALLTYPE OnViewChange(DWORD, LONG) override {}
    void STDMETHODCALLTYPE OnRename(IMoniker*) override {}
    void STDMETHODCALLTYPE OnSave() override { ++Saved; }
    void STDMETHODCALLTYPE OnClose() override {}

    int Saved = 0;
};

/// A field in a document, and what can be done to it there.
struct Document {
    Document() {
        EXPECT_CODE(
            StgCreateDocfile(nullptr, STGM_CREATE | STGM_READWRITE | STGM_SHARE_EXCLUSIVE | STGM_DELETEONRELEASE, 0,
                             storage.receive()),
            S_OK);
        DWORD cookie = 0;
        EXPECT_CODE(field.as<IOleObject>()->Advise(&sink, &cookie), S_OK);
    }
    void saveStream(BOOL clearDirty) {
        EXPECT_CODE(field.as<IPersistStreamInit>()->Save(memoryStream().get(), clearDirty), S_OK);
    }
    void saveStorage(BOOL sameAsLoad, IStorage* goesOnWith) {
        EXPECT_CODE(field.as<IPersistStorage>()->Save(storage.get(), sameAsLoad), S_OK);
        EXPECT_CODE(field.as<IPersistStorage>()->SaveCompleted(goesOnWith), S_OK);
    }

    Ref<_KelText> field = makeText();
    Ref<IStorage> storage;
    SaveSink sink;
    Bag bag;
};

}  // namespace

TEST(persist_documents_know_what_is_saved) {
    struct Row {
        NamedDeed<Document> deed;
        HRESULT dirty;
        int told;
    };
    const Row rows[] = {
        {{"nothing", [](Document&) {}}, S_OK, 0},
        {{"copied to a stream", [](Document& d) { d.saveStream(FALSE); }}, S_OK, 0},
        {{"saved to a stream", [](Document& d) { d.saveStream(TRUE); }}, S_FALSE, 1},
        {{"saved to a bag", [](Document& d) { EXPECT_CODE(save(d.field.get(), d.bag), S_OK); }}, S_FALSE, 1},
        {{"copied to a storage", [](Document& d) { d.saveStorage(FALSE, nullptr); }}, S_OK, 0},
        {{"saved to its storage", [](Document& d) { d.saveStorage(TRUE, nullptr); }}, S_FALSE, 1},
        {{"moved to a storage", [](Document& d) { d.saveStorage(FALSE, d.storage.get()); }}, S_FALSE, 1},
        {{"its storage given back",
          [](Document& d) { EXPECT_CODE(d.field.as<IPersistStorage>()->SaveCompleted(d.storage.get()), S_OK); }},
         S_OK,
         0},
    };
    for (const Row& row : rows) {
        Document document;
        EXPECT_CODE(document.field.as<IPersistStorage>()->InitNew(document.storage.get()), S_OK);
        row.deed.act(document);
        const HRESULT dirty = document.field.as<IPersistStreamInit>()->IsDirty();
        if (dirty != row.dirty || document.sink.Saved != row.told)
            fail(__FILE__, __LINE__, std::string(row.deed.name) + ": told " + shown(document.sink.Saved));
    }
}

TEST(persist_new_control_takes_the_containers_name) {
    Host host;
    const auto field = host.place();
    EXPECT_CODE(field.as<IPersistPropertyBag>()->InitNew(), S_OK);
    EXPECT_EQ(captionOf(field.get()), std::wstring(L"Field1"));
}

TEST(persist_a_second_beginning_is_refused) {
    const auto field = filledField();
    EXPECT_CODE(field.as<IPersistStreamInit>()->InitNew(), E_UNEXPECTED);
    EXPECT_CODE(field.as<IPersistStreamInit>()->Load(memoryStream(savedBytes()).get()), E_UNEXPECTED);
    const auto other = makeText();
    Bag bag;
    HRESULT inner = S_OK;
    bag.OnRead = [&] { inner = other.as<IPersistStreamInit>()->InitNew(); };
    EXPECT_CODE(load(other.get(), bag), S_OK);
    EXPECT_CODE(inner, E_UNEXPECTED);
}
