// The output document and its delivery. A document is, in memory, what its JSON form shows:
//
//     {"title": ..., "objects": [tables and graphs, in the order in which they were added]}
#include "standin/objects/output/output_data.h"

#include "standin/border/host_call.h"
#include "standin/session/session.h"

using standin::HostCall;

StatJSONGenerator::StatJSONGenerator(const std::string& title, const std::string& second)
{
    HostCall call(HostCall::Constructor{}, "StatJSONGenerator::StatJSONGenerator", title, second);
    data = std::make_unique<Data>();
    auto& document = data->document;
    document.SetObject();
    document.AddMember("title", rapidjson::Value(title, document.GetAllocator()), document.GetAllocator());
    document.AddMember("objects", rapidjson::Value(rapidjson::kArrayType), document.GetAllocator());
    call.creates(this);
}

StatJSONGenerator::~StatJSONGenerator()
{
    HostCall call(HostCall::Destructor{}, this, "StatJSONGenerator::~StatJSONGenerator");
    data.reset();
}

rapidjson::Document& StatJSONGenerator::getProcedureStatJSON()
{
    HostCall call(this, "StatJSONGenerator::getProcedureStatJSON");
    return data->document;
}

void StatJSONGenerator::Data::append(rapidjson::Value& object)
{
    document["objects"].PushBack(object, document.GetAllocator());
}

struct StatJSONConverter::Data {
    BpProcedure* procedure;
};

StatJSONConverter::StatJSONConverter(BpProcedure& procedure)
{
    HostCall call(HostCall::Constructor{}, "StatJSONConverter::StatJSONConverter", procedure);
    call.requireAlive(&procedure, "the procedure");
    data = std::make_unique<Data>(Data{&procedure});
    call.creates(this);
}

StatJSONConverter::~StatJSONConverter()
{
    HostCall call(HostCall::Destructor{}, this, "StatJSONConverter::~StatJSONConverter");
    data.reset();
}

bool StatJSONConverter::generateOutput(rapidjson::Document& document)
{
    HostCall call(this, "StatJSONConverter::generateOutput", document);
    call.requireAlive(data->procedure, "the procedure");
    call.require(!standin::Session::current().delivered(), "a document was delivered before");
    standin::Session::current().deliver(document);
    return true;
}

struct OPSCommonOutput::Data {};

OPSCommonOutput::OPSCommonOutput(ACAVarValidSpecs* validSpecs, ProcedureDataSource& source, BpProcedure* procedure,
                                 const ACAInputAdapter* adapter)
{
    HostCall call(HostCall::Constructor{}, "OPSCommonOutput::OPSCommonOutput", validSpecs, source, procedure, adapter);
    call.requireAlive(validSpecs, "the validity specification");
    call.requireAlive(&source, "the data source");
    call.requireAlive(procedure, "the procedure");
    call.creates(this);
}

OPSCommonOutput::~OPSCommonOutput()
{
    HostCall call(HostCall::Destructor{}, this, "OPSCommonOutput::~OPSCommonOutput");
}
