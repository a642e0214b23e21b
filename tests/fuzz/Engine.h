// Performs calls on the library, and holds each against the model.
#pragma once

#include "fuzz/Decoder.h"
#include "support/TestHost.h"

class Engine
{
public:
    // Without pictures ten times as many calls go by. `tells`: prints each call.
    Engine(bool renders, bool tells);
    ~Engine();
    Engine(const Engine&) = delete;
    Engine& operator=(const Engine&) = delete;

    // A sequence that begins with one view of each kind, and everything as it was at the start of
    // the process. `reusesViews`: they are the views of the last sequence, emptied.
    // False: the library and the model disagree; GetComplaint says how.
    bool Run(std::span<const uint8_t> bytes, bool reusesViews = false);
    // The same in steps.
    void Begin(double side, bool reusesViews = false);
    void Perform(Call& call);
    // By name, with the ids and numbers that it takes.
    Call Do(const std::string& name, const Numbers& scalars);
    // By its name for 3D views, with the numbers behind the view's id.
    Call Do(const ModelView& view, const std::string& name, const Numbers& given = {});
    // What a call has touched is as the model has it.
    void LookAfter(const Call& call);

    const std::string& GetComplaint() const { return Complaint; }
    void ForgetComplaint() { Complaint.clear(); }
    Model& GetModel() { return Expected; }
    // How many calls sequences had, without those that look after them.
    long CountCalls() const { return Calls; }

private:
    void Empty(const ModelView& view);
    void Compare(const Call& call, int32_t status, Expectation expected);
    void MoveMouse(const MouseMove& move);
    void TakeOverDrawn(ModelView& view);
    void Tell(const std::string& what) const;
    void Complain(const Call& call, const std::string& what);
    void CallBack(bool onChart, int script, int32_t view, int32_t element);
    template <bool onChart, int... before>
    static void FillCallbacks(std::integer_sequence<int, before...> scripts);

    const bool Renders;
    const bool Tells;
    TestHost Host{200, 200};
    Model Expected;
    std::map<int32_t, Numbers> FirstDefaults;
    std::string Complaint;
    long Calls = 0;
};
