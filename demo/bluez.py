# SPDX-License-Identifier: GPL-3.0-or-later
"""The BlueZ side of the simulated daemon: objects, methods and errors as its clients know them."""

import dbus
import dbus.service
from gi.repository import GLib

ADAPTER = 'org.bluez.Adapter1'
AGENT_MANAGER = 'org.bluez.AgentManager1'
DEVICE = 'org.bluez.Device1'
OBJECT_MANAGER = 'org.freedesktop.DBus.ObjectManager'

A2DP_SINK = '0000110b-0000-1000-8000-00805f9b34fb'
HEADSET_CLASS = 0x240404

WRITABLE = {'Alias', 'Blocked', 'Discoverable', 'DiscoverableTimeout', 'Pairable', 'PairableTimeout',
            'Powered', 'Trusted'}

# Clients and Python send plain integers; the daemon's own types are narrower.
TYPES = {'Appearance': dbus.UInt16, 'Class': dbus.UInt32, 'DiscoverableTimeout': dbus.UInt32,
         'PairableTimeout': dbus.UInt32, 'RSSI': dbus.Int16,
         'UUIDs': lambda uuids: dbus.Array(uuids, signature='s')}

AGENT_METHODS = {
    'AuthorizeService': 'os', 'Cancel': '', 'DisplayPasskey': 'ouq', 'DisplayPinCode': 'os', 'Release': '',
    'RequestAuthorization': 'o', 'RequestConfirmation': 'ou', 'RequestPasskey': 'o', 'RequestPinCode': 'o',
}


def failure(name, text):
    return dbus.DBusException(text, name=name if '.' in name else 'org.bluez.Error.' + name)


def typed(props):
    """What makes no sense for its property stays as it is, for clients that have to cope with it."""
    return {name: TYPES[name](value) if name in TYPES and isinstance(value, list if name == 'UUIDs' else int)
            else value for name, value in props.items()}


def pause(milliseconds):
    return lambda resume, _fail: GLib.timeout_add(milliseconds, resume) if milliseconds > 0 else resume()


class Job:
    """Something that takes time: a generator that yields what it waits for, while the daemon serves on."""

    def __init__(self, steps, error):
        self.steps = steps
        self.error = error
        self.over = False
        self.resume()

    def resume(self, *_answer):
        self.advance(self.steps.send, None)

    def fail(self, exception):
        self.advance(self.steps.throw, exception)

    def advance(self, move, value):
        if self.over:
            return
        try:
            wait = move(value)
        except StopIteration:
            self.over = True
        except dbus.DBusException as exception:
            self.over = True
            self.error(exception)
        else:
            wait(self.resume, self.fail)


class Agent:
    """A client's agent, known by the client's bus name and a path there."""

    def __init__(self, bus, owner, path):
        self.bus = bus
        self.owner = owner
        self.path = path

    def call(self, method, args, reply, error):
        self.bus.call_async(self.owner, self.path, 'org.bluez.Agent1', method, AGENT_METHODS[method], args,
                            reply, error, timeout=60)

    def ask(self, method, *args):
        """What a job yields to wait for the agent's answer; whatever is no consent fails the pairing."""
        refused = failure('AuthenticationFailed', 'Authentication Failed')
        return lambda resume, fail: self.call(method, args, resume, lambda _error: fail(refused))


class Node(dbus.service.Object):
    """An object of the daemon with the properties of one interface."""

    def __init__(self, root, path, interface, props):
        super().__init__(root.bus, path)
        self.root = root
        self.path = dbus.ObjectPath(path)
        self.interface = interface
        self.props = typed(props)

    def interfaces(self):
        return {self.interface: self.props}

    def change(self, **props):
        changed = {name: value for name, value in typed(props).items() if self.props.get(name) != value}
        self.props.update(changed)
        if changed:
            self.PropertiesChanged(self.interface, changed, [])

    @dbus.service.method(dbus.PROPERTIES_IFACE, in_signature='s', out_signature='a{sv}')
    def GetAll(self, interface):
        return self.interfaces().get(interface, {})

    @dbus.service.method(dbus.PROPERTIES_IFACE, in_signature='ss', out_signature='v')
    def Get(self, interface, name):
        if name not in self.GetAll(interface):
            raise failure('org.freedesktop.DBus.Error.UnknownProperty', f'No such property "{name}"')
        return self.props[name]

    @dbus.service.method(dbus.PROPERTIES_IFACE, in_signature='ssv')
    def Set(self, interface, name, value):
        if name not in WRITABLE or name not in self.GetAll(interface):
            raise failure('org.freedesktop.DBus.Error.PropertyReadOnly', f'Property "{name}" is not writable')
        self.change(**{name: value})

    @dbus.service.signal(dbus.PROPERTIES_IFACE, signature='sa{sv}as')
    def PropertiesChanged(self, interface, changed, invalidated):
        pass


class Device(Node):
    def __init__(self, adapter, props, how):
        name = props.get('Name', props['Address'])
        audio = props.get('Class', HEADSET_CLASS) >> 8 & 0x1f == 4
        super().__init__(adapter.root, f'{adapter.path}/dev_{props["Address"].replace(":", "_")}', DEVICE, {
            'AddressType': 'public', 'Name': name, 'Alias': name, 'Class': HEADSET_CLASS, 'Appearance': 0,
            'UUIDs': [A2DP_SINK] if audio else [], 'RSSI': -58, 'Adapter': adapter.path, 'Paired': False,
            'Trusted': False, 'Blocked': False, 'LegacyPairing': False, 'Connected': False, **props})
        self.adapter = adapter
        self.how = how
        self.job = None
        self.held_back = []  # the second halves of changes and answers

    def busy(self):
        return self.job is not None and not self.job.over

    def abort(self):
        if self.busy():
            self.job.fail(failure('Failed', 'br-connection-canceled'))

    @dbus.service.method(DEVICE, async_callbacks=('reply', 'error'))
    def Connect(self, reply, error):
        if not self.adapter.props['Powered']:
            raise failure('NotReady', 'br-connection-adapter-not-powered')
        if self.busy():
            raise failure('InProgress', 'br-connection-busy')
        self.job = Job(self.connecting(reply), error)

    @dbus.service.method(DEVICE, async_callbacks=('reply', 'error'), sender_keyword='sender')
    def Pair(self, reply, error, sender):
        if self.props['Paired']:
            raise failure('AlreadyExists', 'Already Exists')
        if self.busy():
            raise failure('InProgress', 'In Progress')
        manager = self.root.agent_manager
        self.job = Job(self.pairing(manager.agents.get(sender) or manager.default(), reply), error)

    @dbus.service.method(DEVICE, async_callbacks=('reply', 'error'))
    def Disconnect(self, reply, error):
        if not self.busy() and not self.props['Connected']:
            raise failure('NotConnected', 'Not Connected')
        self.abort()
        self.job = Job(self.settling(reply, Connected=False), error)

    def connecting(self, reply):
        yield pause(self.how.get('ConnectTime', 0))
        if 'ConnectError' in self.how:
            yield pause(self.how.get('ReplyDelay', 0))
            raise failure(self.how['ConnectError'], self.how.get('ConnectErrorText', ''))
        if not self.props['Paired']:
            yield from self.pairing(self.root.agent_manager.default())
        yield from self.settling(reply, Connected=not self.how.get('NoConnect', False))

    def pairing(self, agent, reply=None):
        if not agent:
            raise failure('AuthenticationFailed', 'Authentication Failed')
        if 'Pin' in self.how:
            yield agent.ask('DisplayPinCode', self.path, str(self.how['Pin']))
        elif 'Passkey' in self.how:
            yield agent.ask('DisplayPasskey', self.path, self.how['Passkey'], 0)
        else:
            yield agent.ask('RequestConfirmation', self.path, 123456)
        yield pause(self.how.get('PairTime', 0))
        if self.props['UUIDs'] and not self.props['Trusted']:
            yield agent.ask('AuthorizeService', self.path, self.props['UUIDs'][0])
        self.change(Paired=True)
        self.root.pairings_changed()
        if reply:
            yield from self.settling(reply)

    def settling(self, reply, **props):
        """Changes the properties and answers, in the order and with the delay that this device is set to."""
        delay = self.how.get('ReplyDelay', 20)
        if self.how.get('ReplyFirst', False):
            reply()
            second = lambda: self.change(**props)
        else:
            self.change(**props)
            second = reply
        if delay < 0:
            self.held_back.append(second)
        else:
            yield pause(delay)
            second()


class Adapter(Node):
    def __init__(self, root, name, powered):
        number = int(name[len('hci'):])
        title = 'desk' if number == 0 else f'desk #{number + 1}'
        super().__init__(root, '/org/bluez/' + name, ADAPTER, {
            'Address': f'00:1A:7D:00:00:{number:02X}', 'AddressType': 'public', 'Name': title, 'Alias': title,
            'Class': 0x6c010c, 'Powered': powered, 'Discoverable': False, 'DiscoverableTimeout': 180,
            'Pairable': True, 'PairableTimeout': 0, 'Discovering': False, 'UUIDs': []})
        self.in_air = []  # what a discovery finds: properties and behaviour of devices
        self.hearing_gap = 280  # ms from one device to the next
        self.hearing = False
        self.searchers = set()  # the clients that have a discovery running

    def devices(self):
        return [device for device in self.root.devices() if device.adapter is self]

    def set_searchers(self, searchers):
        self.searchers = searchers
        self.change(Discovering=bool(searchers))

    def hear_next(self):
        known = {device.props['Address'] for device in self.devices()}
        unheard = [(props, how) for props, how in self.in_air if props['Address'] not in known]
        self.hearing = bool(self.searchers and unheard)
        if self.hearing:
            self.root.publish(Device(self, *unheard[0]))
        return self.hearing

    def need_power(self):
        if not self.props['Powered']:
            raise failure('NotReady', 'Resource Not Ready')

    @dbus.service.method(dbus.PROPERTIES_IFACE, in_signature='ssv')
    def Set(self, interface, name, value):
        super().Set(interface, name, value)
        if not self.props['Powered']:
            self.set_searchers(set())
            for device in self.devices():
                device.abort()
                device.change(Connected=False)

    @dbus.service.method(ADAPTER, sender_keyword='sender')
    def StartDiscovery(self, sender):
        self.need_power()
        if sender in self.searchers:
            raise failure('InProgress', 'Operation already in progress')
        self.set_searchers(self.searchers | {sender})
        if not self.hearing:
            self.hearing = True
            GLib.timeout_add(self.hearing_gap, self.hear_next)

    @dbus.service.method(ADAPTER, sender_keyword='sender')
    def StopDiscovery(self, sender):
        self.need_power()
        if sender not in self.searchers:
            raise failure('Failed', 'No discovery started')
        self.set_searchers(self.searchers - {sender})

    @dbus.service.method(ADAPTER, in_signature='o')
    def RemoveDevice(self, path):
        self.need_power()
        device = self.root.nodes.get(path)
        if device not in self.devices():
            raise failure('DoesNotExist', 'Does Not Exist')
        device.change(Connected=False)
        self.root.withdraw(device)
        self.root.pairings_changed()


class AgentManager(dbus.service.Object):
    def __init__(self, bus):
        super().__init__(bus, '/org/bluez')
        self.bus = bus
        self.agents = {}  # by the bus name of the owner
        self.defaults = []  # owners, the one to ask first

    def interfaces(self):
        return {AGENT_MANAGER: {}, 'org.bluez.ProfileManager1': {}}

    def default(self):
        return self.agents[self.defaults[0]] if self.defaults else None

    def forget(self, owner):
        self.agents.pop(owner, None)
        self.defaults = [other for other in self.defaults if other != owner]

    def need_agent(self, owner, path):
        if owner not in self.agents or self.agents[owner].path != path:
            raise failure('DoesNotExist', 'Does Not Exist')

    @dbus.service.method(AGENT_MANAGER, in_signature='os', sender_keyword='sender')
    def RegisterAgent(self, path, _capability, sender):
        if sender in self.agents:
            raise failure('AlreadyExists', 'Already Exists')
        self.agents[sender] = Agent(self.bus, sender, path)

    @dbus.service.method(AGENT_MANAGER, in_signature='o', sender_keyword='sender')
    def RequestDefaultAgent(self, path, sender):
        self.need_agent(sender, path)
        self.defaults = [sender] + [other for other in self.defaults if other != sender]


class Root(dbus.service.Object):
    """The object manager, which holds all other objects and knows when a client leaves."""

    def __init__(self, bus):
        super().__init__(bus, '/')
        self.bus = bus
        self.agent_manager = AgentManager(bus)
        self.nodes = {'/org/bluez': self.agent_manager}
        bus.add_signal_receiver(self.owner_left, 'NameOwnerChanged', 'org.freedesktop.DBus', arg2='')

    def owner_left(self, name, _old, _new):
        self.agent_manager.forget(name)
        for node in self.nodes.values():
            if isinstance(node, Adapter):
                node.set_searchers(node.searchers - {name})

    def devices(self):
        return [node for node in self.nodes.values() if isinstance(node, Device)]

    def pairings_changed(self):
        pass

    def publish(self, node):
        self.nodes[node.path] = node
        self.InterfacesAdded(node.path, node.interfaces())

    def withdraw(self, node):
        if isinstance(node, Device):
            node.abort()
        del self.nodes[node.path]
        node.remove_from_connection()
        self.InterfacesRemoved(node.path, list(node.interfaces()))

    @dbus.service.method(OBJECT_MANAGER, out_signature='a{oa{sa{sv}}}')
    def GetManagedObjects(self):
        return {path: node.interfaces() for path, node in self.nodes.items()}

    @dbus.service.signal(OBJECT_MANAGER, signature='oa{sa{sv}}')
    def InterfacesAdded(self, path, interfaces):
        pass

    @dbus.service.signal(OBJECT_MANAGER, signature='oas')
    def InterfacesRemoved(self, path, interfaces):
        pass
